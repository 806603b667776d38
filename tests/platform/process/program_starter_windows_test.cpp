// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <windows.h>

#include <objbase.h>
#include <objidl.h>
#include <shlobj.h>

#include <fstream>
#include <iterator>
#include <QCoreApplication>
#include <QDir>
#include <QTimer>

#include "platform/local_files.h"
#include "platform/os/windows_text.h"
#include "platform/process/detached_programs.h"
#include "support/program_folder.h"
#include "support/wait_until.h"

namespace tarnwick {
namespace {

using testing::waitUntil;

class ProgramStart : public ::testing::Test {
 protected:
  std::string at(const std::string& name) const {
    return QDir::toNativeSeparators(QString::fromStdString(folder.file(name))).toStdString();
  }
  std::string make(const std::string& name, const std::string& text) const {
    std::ofstream(pathOf(at(name)), std::ios::binary) << text;
    return at(name);
  }
  /// A shortcut to a program, with arguments of its own.
  std::string link(const std::string& name, const std::string& target, const std::string& arguments) const {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IShellLinkW* shortcut = nullptr;
    IPersistFile* file = nullptr;
    EXPECT_EQ(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                               reinterpret_cast<void**>(&shortcut)),
              S_OK);
    const std::string native = QDir::toNativeSeparators(QString::fromStdString(target)).toStdString();
    shortcut->SetPath(wideOf(native).c_str());
    shortcut->SetArguments(wideOf(arguments).c_str());
    shortcut->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    EXPECT_EQ(file->Save(wideOf(at(name)).c_str(), TRUE), S_OK);
    file->Release();
    shortcut->Release();
    CoUninitialize();
    return at(name);
  }
  /// What the program has written to `out`, once it is there.
  std::string written() const {
    QTimer looks;
    looks.start(10);
    std::string text;
    // While it is being renamed it may be there and not be opened yet.
    EXPECT_TRUE(waitUntil([&] {
      std::ifstream file(pathOf(at("out")), std::ios::binary);
      text.assign(std::istreambuf_iterator<char>(file), {});
      return !text.empty();
    })) << "The program was not started.";
    return text;
  }
  static std::string programFolder() {
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
  }

  const testing::ProgramFolder folder;
  DetachedPrograms programs;
};

TEST_F(ProgramStart, AProgramIsGivenEveryArgumentAsItIsAndRunsInTheProgramFolder) {
  EXPECT_TRUE(programs.start({TARNWICK_ARGUMENTS_PROBE, at("out"), "", "a b", "\"", "a\\", "b c\\",
                              "%PATH% & x | y > z", "gr\xc3\xbc\xc3\x9f \xe6\x97\xa5", "\n"}));
  EXPECT_EQ(written(),
            programFolder() + "\n[][a b][\"][a\\][b c\\][%PATH% & x | y > z][gr\xc3\xbc\xc3\x9f \xe6\x97\xa5][\n]");
}

TEST_F(ProgramStart, AProgramIsFoundWithoutItsEndingInAFolderWithABlank) {
  LocalFiles().makeFolder(at("a \xc3\xa4"));
  std::filesystem::copy_file(pathOf(TARNWICK_ARGUMENTS_PROBE), pathOf(at("a \xc3\xa4/probe.exe")));
  EXPECT_TRUE(programs.start({at("a \xc3\xa4/probe"), at("out"), "x"}));
  EXPECT_TRUE(written().ends_with("\n[x]"));
}

TEST_F(ProgramStart, ABatchFileIsStarted) {
  const std::string batch = make("a b.bat", "@\"" TARNWICK_ARGUMENTS_PROBE "\" \"" + at("out") + "\" batch\r\n");
  EXPECT_TRUE(programs.start({batch}));
  EXPECT_EQ(written(), programFolder() + "\n[batch]");
}

TEST_F(ProgramStart, NothingThatABatchFileIsGivenIsACommand) {
  const std::string batch = make("a b.bat", "@\"" TARNWICK_ARGUMENTS_PROBE "\" \"" + at("out") + "\" %*\r\n");
  EXPECT_TRUE(programs.start({batch, "a b", "x & echo y", "p|q<r>s", "(z)"}));
  EXPECT_EQ(written(), programFolder() + "\n[a b][x & echo y][p|q<r>s][(z)]");
}

TEST_F(ProgramStart, NothingThatABatchFileIsGivenIsAVariable) {
  const std::string batch = make("a b.bat", "@\"" TARNWICK_ARGUMENTS_PROBE "\" \"" + at("out") + "\" %*\r\n");
  EXPECT_TRUE(programs.start({batch, "%OS%", "100% of %OS% %"}));
  EXPECT_EQ(written(), programFolder() + "\n[%OS%][100% of %OS% %]");
}

TEST_F(ProgramStart, AShortcutIsWhatItLeadsTo) {
  const std::string program = link("a program.lnk", TARNWICK_ARGUMENTS_PROBE, "\"" + at("out") + "\" \"of its own\"");
  EXPECT_TRUE(programs.start({program, "x & y", "%OS%", "a\"b"}));
  EXPECT_EQ(written(), programFolder() + "\n[of its own][x & y][%OS%][a\"b]");
}

TEST_F(ProgramStart, NothingThatAShortcutToABatchFileIsGivenIsACommand) {
  const std::string batch = make("a b.bat", "@\"" TARNWICK_ARGUMENTS_PROBE "\" \"" + at("out") + "\" %*\r\n");
  const std::string shortcut = link("a batch file.lnk", batch, "");
  EXPECT_TRUE(programs.start({link("to a shortcut.lnk", shortcut, ""), "a b", "x&echo>" + at("evil"), "p|q<r>s"}));
  EXPECT_EQ(written(), programFolder() + "\n[a b][x&echo>" + at("evil") + "][p|q<r>s]");
  EXPECT_EQ(LocalFiles().kindOf(at("evil")), FileKind::none);
}

TEST_F(ProgramStart, ABatchFileIsSeenForWhatItIsHoweverItsNameEnds) {
  make("a b.bat", "@\"" TARNWICK_ARGUMENTS_PROBE "\" \"" + at("out") + "\" %*\r\n");
  EXPECT_TRUE(programs.start({at("a b.BAT. . "), "x&echo>" + at("evil")}));
  EXPECT_EQ(written(), programFolder() + "\n[x&echo>" + at("evil") + "]");
  EXPECT_EQ(LocalFiles().kindOf(at("evil")), FileKind::none);
}

TEST_F(ProgramStart, AScriptIsStartedWithItsArguments) {
  const std::string script = make("a b.vbs",
                                  "Set files = CreateObject(\"Scripting.FileSystemObject\")\r\n"
                                  "Set out = files.CreateTextFile(WScript.Arguments(0) & \".part\", True)\r\n"
                                  "out.Write \"[\" & WScript.Arguments(1) & \"][\" & WScript.Arguments(2) & \"]\"\r\n"
                                  "out.Close\r\n"
                                  "files.MoveFile WScript.Arguments(0) & \".part\", WScript.Arguments(0)\r\n");
  EXPECT_TRUE(programs.start({script, at("out"), "x & y %OS%", "z"}));
  EXPECT_EQ(written(), "[x & y %OS%][z]");
}

TEST_F(ProgramStart, WhatCannotBeStartedIsTold) {
  EXPECT_FALSE(programs.start({}));
  EXPECT_FALSE(programs.start({""}));
  EXPECT_FALSE(programs.start({at("none.exe")}));
  EXPECT_FALSE(programs.start({"no-program-of-this-name"}));
  EXPECT_FALSE(programs.start({TARNWICK_ARGUMENTS_PROBE, std::string("a\0b", 3)}));
  EXPECT_FALSE(programs.start({make("a.bat", "@rem\r\n"), "a\nb"}));
  EXPECT_FALSE(programs.start({make("a.exe", "this is no program")}));
}

}  // namespace
}  // namespace tarnwick
