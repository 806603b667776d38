// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/prompts.h"
#include "uucode/uu_files.h"

namespace tarnwick {

/// Files as uuencoded text, whole or in numbered parts, and back; base64 text too. Files of any size are worked on in
/// little memory. Made where it is used.
///
/// An encoded file has CR LF line ends, a header line "begin " and the lower-case name of the file (other encoders give
/// a permission mode before the name; it has none), data lines, a line with a grave accent alone, and "end".
///
/// The encoding pads the data to a multiple of three bytes. Pad bytes cannot be told from data, so what comes back has
/// up to two bytes more at its very end.
///
/// The file operations return false after a message box: an input file that does not exist, an output file that exists
/// and that the user does not wish to overwrite, a part that is missing. Where that question is answered later than at
/// once, they return false too, and do their work when the answer is Yes. What else goes wrong with a file raises
/// FileError, and a damaged text DecodeError. Whenever an operation does not return true, no output file has been made
/// and none that was there has changed, with one exception: parts are written under other names, and get theirs one by
/// one in the end, the last part first. When one of these names cannot be given, the parts that have theirs stay. An
/// output file gets the permissions of the input file.
///
/// Paths are UTF-8.
///
/// Vocabulary: no front end calls it.
class UUCode {
 public:
  /// Both outlive this object.
  UUCode(Prompts& prompts, FileSystem& files) : prompts_(prompts), files_(files) {}

  /// Encodes the file into the folder `OutPath` (empty: the current one). With a `MaxFileSize` of 1 or more that is
  /// less than the file's, it is cut into parts of at most so many bytes of input, numbered from 1; a part is a
  /// complete encoded file and holds a multiple of 45 bytes, at least 45. Part names have eight characters at most and
  /// end with the number: "REPORT1.UUE", or "REPORT01.UUE" when there are ten parts and more.
  /// Raises FileError for ten thousand parts and more, and for a name with nothing before its first dot.
  bool UUEncodeFiles(const std::string& InFile, const std::string& OutPath, std::int64_t MaxFileSize);

  /// Encodes the file as the file `OutFile`.
  bool UUEncodeFile(const std::string& InFile, const std::string& OutFile);

  /// Reads the name from the header within the first 512 bytes of a file: the text between "begin " and the next CR LF.
  /// False, and `Name` as it was, when there is no such text.
  bool GetHeaderInfo(const std::string& InFile, std::string& Name);
  /// The same for a text in memory.
  static bool GetHeaderInfoFromStream(const std::string& Text, std::string& Name);

  /// Decodes the parts of a file, given in any order, into the file `OutFile`. Their numbers are read from their names:
  /// as UUEncodeFiles makes them, or else the digits before the last dot. Numbers that are missing are named in a
  /// message box. Raises DecodeError also for parts of different files, a part given twice, and a part whose size does
  /// not fit to the others'.
  bool UUDecodeFiles(const std::vector<std::string>& InFiles, const std::string& OutFile);

  /// Decodes one file into the file `OutFile`; the name in its header does not count. Text before the header and after
  /// the end is skipped. LF line ends, a mode in the header, blanks for grave accents and stripped blanks are read too.
  bool UUDecodeFile(const std::string& InFile, const std::string& OutFile);

  /// Encodes one block, replacing `OutData` by its lines; `InData` grows by its pad bytes: copies of the bytes three
  /// places before them, or the letter "a" when there are fewer than three. True.
  static bool EncodeStream(std::string& InData, std::string& OutData);

  /// Encodes `iRecLen` bytes (in groups of three, so up to two more) at the position `iPos` of `InData` to the position
  /// `oPos` of `OutData`, a line end after them, and moves both positions on. Positions count from 0. False, with
  /// nothing changed, when either text is too short for that.
  static bool EncodeRec(const std::string& InData, std::string& OutData, std::size_t& iPos, std::size_t& oPos,
                        std::uint8_t iRecLen);

  /// Decodes base64 text (RFC 4648; lines and padding as in RFC 2045), replacing `OutData`. True; raises DecodeError
  /// for a damaged text, with `OutData` as it was.
  static bool MIMEDecodeStream(const std::string& InData, std::string& OutData);

  /// Decodes what EncodeStream makes, any number of lines, replacing `OutData`. True; raises DecodeError for a damaged
  /// line, with `OutData` as it was.
  static bool DecodeStream(const std::string& InData, std::string& OutData);

  /// Decodes the rest of a line, from the position `iPos` after its length character to its end, into `oRecLen` bytes
  /// at the position `oPos` of `OutData`, and moves both positions on, `iPos` beyond the line end. Characters that are
  /// missing before the line end count as blanks. False, with nothing changed, for a character that is none of the
  /// alphabet, for a line that is too long, and when `OutData` is too short.
  static bool DecodeRec(const std::string& InData, std::string& OutData, std::size_t& iPos, std::size_t& oPos,
                        std::uint8_t oRecLen);

 private:
  bool hasInput(const std::string& InFile);
  /// Has the files written, once the user agrees for each that is there already; true when that has been done.
  bool ifMayWrite(const std::vector<std::string>& outFiles, const std::function<void()>& write);
  bool isFile(const std::string& path);

  Prompts& prompts_;
  FileSystem& files_;
};

}  // namespace tarnwick
