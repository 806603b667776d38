"""Small trees that break the rules, each one of them once."""

HEADER = "#pragma once\n"
ROOM_ON_BASE = {
    "src/base/b.h": HEADER, "src/base/b.cpp": '#include "base/b.h"\n',
    "src/base/CMakeLists.txt": "tarnwick_room(base SOURCES b.cpp)\n",
    "src/store/s.h": HEADER + '#include "base/b.h"\n', "src/store/s.cpp": '#include "store/s.h"\n',
}
# Each tree, and a piece of the only finding that it must give, or of each one; None for a tree that breaks no rule.
TREES = {
    "a sound tree": (None, {
        "src/store/a.h": HEADER + '#include "platform/p.h"\n', "src/platform/p.h": HEADER + "#include <string>\n",
        "src/store/b.h": HEADER + '#include "base/c.h"\n', "src/base/c.h": HEADER,
        "src/platform/web/p.cpp": '#include "platform/p.h"\n#include <QString>\n',
        "src/platform/web/CMakeLists.txt": "tarnwick_room(p SOURCES p.cpp PRIVATE Qt6::Core)\n",
        "src/app/a.h": HEADER + '#include "platform/web/q.h"\n', "src/platform/web/q.h": HEADER,
        "src/ui/site/text.h": HEADER + 'auto text = tr("Select a site.");  // "select a from b"\n',
        "tests/store/a_test.h": HEADER + "sleep_for(1s);  // sleeps because the file's clock is coarse\n"}),
    "Qt in the core": ("src/store/a.h:2: includes <QString>", {"src/store/a.h": HEADER + "#include <QString>\n"}),
    "SQLite in the core": ("includes <sqlite3.h>", {"src/program/m.h": HEADER + "#include <sqlite3.h>\n"}),
    "curl in the core": ("includes <curl/curl.h>", {"src/engine/a.h": HEADER + "#include <curl/curl.h>\n"}),
    "SQLite in a window": ("belong in ui/site/", {"src/ui/site/a.h": HEADER + "#include <sqlite3.h>\n"}),
    "Qt in the terminal": ("belong in cli/verbs/", {"src/cli/verbs/a.h": HEADER + "#include <QString>\n"}),
    "Qt in the database": ("belong in platform/sqlite/", {
        "src/platform/sqlite/a.h": HEADER + "#include <QString>\n"}),
    "a library by way of a header": ("src/cli/terminal/a.h:1: includes <nlohmann/json.hpp> through src/exchange/json/b.h", {
        "src/exchange/list/a.h": HEADER + '#include "exchange/json/b.h"\n',
        "src/exchange/json/b.h": HEADER + "#include <nlohmann/json.hpp>\n",
        "src/cli/terminal/a.h": HEADER + '#include "exchange/json/b.h"\n'}),
    "a room that looks up": ('includes "engine/e.h": store/ may include only base, history, holes, platform', {
        "src/store/a.h": HEADER + '#include "engine/e.h"\n', "src/engine/e.h": HEADER}),
    "a window in the terminal": ('includes "ui/site/s.h": cli/verbs/ may include only', {
        "src/cli/verbs/a.h": HEADER + '#include "ui/site/s.h"\n', "src/ui/site/s.h": HEADER}),
    "a wing in the core": ('includes "platform/sqlite/s.h": store/ may include only', {
        "src/store/a.h": HEADER + '#include "platform/sqlite/s.h"\n', "src/platform/sqlite/s.h": HEADER}),
    "a program in a room": ('includes "app/a.h": program/ may include only', {
        "src/program/p.h": HEADER + '#include "app/a.h"\n', "src/app/a.h": HEADER}),
    "a bare callback": ("src/platform/web/a.cpp:1: hands libcurl a function as it is", {
        "src/platform/web/a.cpp": "set(easy, CURLOPT_WRITEFUNCTION, &onPage);\n",
        "src/platform/web/b.cpp": "set(easy, CURLOPT_WRITEFUNCTION, kGuarded<A, &A::onPage, 3, 0>);\n",
        "src/platform/web/CMakeLists.txt": "tarnwick_room(web SOURCES a.cpp b.cpp)\n"}),
    "SQL in a window": ("src/ui/site/a.h:2: writes SQL", {
        "src/ui/site/a.h": HEADER + 'auto sql = "select url from sites";\n'}),
    "SQL in the terminal": ("writes SQL", {"src/cli/verbs/a.h": HEADER + 'auto sql = "UPDATE sites set a = 1";\n'}),
    "a file in no room": ("src/stray/a.h:1: lies in src/stray, which is no room", {"src/stray/a.h": HEADER}),
    "a long source": ("has 501 lines", {"src/store/a.h": HEADER + "\n" * 500}),
    "a long form": ("has 301 lines", {"src/ui/site/a.h": HEADER + "\n" * 300}),
    "an expression that Windows reads otherwise": ("tests/a.h:2: matches by the test library's own",
                                                   {"tests/a.h": HEADER + 'EXPECT_THAT(a, MatchesRegex("[a]"));\n'}),
    "a sleep": ("tests/a.h:2: sleeps", {"tests/a.h": HEADER + "std::this_thread::sleep_for(1s);\n"}),
    "a sleep with an empty reason": ("sleeps", {"tests/a.h": HEADER + "QTest::qSleep(5);  // sleeps because\n"}),
    "another sleep": ("sleeps", {"tests/a.h": HEADER + "QThread::sleep(1);\n"}),
    "a variant of a text alone": ("src/base/a.h:2: has a std::variant of texts", {
        "src/base/a.h": HEADER + "using Value = std::variant<bool, std::string>;\n"}),
    "a variant of a list alone": ("src/base/a.h:2: has a std::variant of texts", {
        "src/base/a.h": HEADER + "using Value = std::variant<std::vector<int>, bool>;\n"}),
    "variants that are copied rightly": (None, {
        "src/base/a.h": HEADER + "using Value = std::variant<Nothing, std::string>;\n"
                                 "using Word = std::variant<std::string_view, std::string Row::*>;\n"}),
    "an unfinished piece": ("src/base/a.h:2: says " + "TO" + "DO", {"src/base/a.h": HEADER + "// " + "TO" + "DO: later\n"}),
    "a source that is not built": ("is built by no CMakeLists.txt", {
        "src/store/a.cpp": "\n", "src/store/CMakeLists.txt": "add_library(s data.cpp)\n"}),
    "a source of each system": (None, {
        "src/store/a_posix.cpp": "\n", "src/store/a_windows.cpp": "\n",
        "src/store/CMakeLists.txt": "add_library(s a_${TARNWICK_SYSTEM}.cpp)\n"}),
    "a question about the system": ("src/store/a.h:2: asks which system", {
        "src/store/a.h": HEADER + "#ifdef _WIN32\n#endif\n"}),
    "a source that is built twice": ("src/store/CMakeLists.txt:2: names src/store/a.cpp", {
        "src/store/a.cpp": "\n", "src/store/CMakeLists.txt": "add_library(s a.cpp)\nadd_executable(t ../store/a.cpp)\n"}),
    "a return in mid-file": ("tests/CMakeLists.txt:2: leaves by return()", {
        "src/base/a.h": HEADER, "tests/CMakeLists.txt": "if(WIN32)\n  return()\nendif()\n"}),
    "rooms that link what they include": (None, {
        **ROOM_ON_BASE, "src/store/CMakeLists.txt": "tarnwick_room(store SOURCES s.cpp PUBLIC tarnwick_base)\n"}),
    "a room that is not linked": ("tarnwick_store includes what is of tarnwick_base and does not link it: add PUBLIC", {
        **ROOM_ON_BASE, "src/store/CMakeLists.txt": "tarnwick_room(store SOURCES s.cpp)\n"}),
    "a room that is linked for its headers and says not": ("src/store/CMakeLists.txt:3: tarnwick_store links tarnwick_base "
                                                           "PRIVATE: make it PUBLIC", {
        **ROOM_ON_BASE, "src/store/CMakeLists.txt": "tarnwick_room(store\n  SOURCES s.cpp\n  PRIVATE tarnwick_base)\n"}),
    "a room that is linked for nothing": ("tarnwick_store links tarnwick_mail, of which it includes nothing", {
        **ROOM_ON_BASE, "src/store/CMakeLists.txt":
            "tarnwick_room(store SOURCES s.cpp PUBLIC tarnwick_base PRIVATE tarnwick_mail)\n"}),
    "a library that is linked for nothing": ("tarnwick_store links SQLite::SQLite3, of which", {
        **ROOM_ON_BASE, "src/store/CMakeLists.txt":
            "tarnwick_room(store SOURCES s.cpp PUBLIC tarnwick_base PRIVATE SQLite::SQLite3)\n"}),
    "a library that is not linked": ("add PRIVATE Qt6::Network", {
        "src/platform/events/e.cpp": "#include <QTcpSocket>\n#include <QTimer>\n",
        "src/platform/events/CMakeLists.txt": "tarnwick_room(events SOURCES e.cpp)\n"}),
    "an interface whose source is in a wing": ("tarnwick_store includes what is of tarnwick_os and does not link it", {
        "src/platform/f.h": HEADER, "src/platform/os/f_posix.cpp": "\n",
        "src/platform/os/CMakeLists.txt": "tarnwick_room(os SOURCES f_${TARNWICK_SYSTEM}.cpp)\n",
        "src/store/s.cpp": '#include "platform/f.h"\n',
        "src/store/CMakeLists.txt": "tarnwick_room(store SOURCES s.cpp)\n"}),
    "rooms in a circle": (("base/ may include only itself", "src/base/a.h:2: closes a circle of rooms: app -> base -> app"), {
        "src/app/b.h": HEADER + '#include "base/a.h"\n', "src/base/a.h": HEADER + '#include "app/b.h"\n'}),
    "a room that is the house": ("src/store:1: holds 4500 of the 8500 lines of src, 53%", {
        f"src/{room}/a{number}.h": HEADER + "\n" * 499
        for room, numbers in (("store", 9), ("base", 2), ("mail", 2), ("report", 2), ("alerts", 2))
        for number in range(numbers)}),
    "a machine for a room without": ("tests/store/CMakeLists.txt:1: gives the tests of store/ MACHINE", {
        "src/base/a.h": HEADER, "tests/store/CMakeLists.txt": "tarnwick_test(store MACHINE SOURCES a_test.cpp)\n"}),
    "Qt in the tests of a room without": ("tests/store/a_test.h:1: includes <QTimer>, itself or through a header", {
        "tests/store/a_test.h": HEADER + '#include "support/b.h"\n', "tests/support/b.h": HEADER + "#include <QTimer>\n"}),
    "a source without a licence": ("src/store/a.h:1: does not name its licence", {
        "LICENSE": "", "src/store/a.h": HEADER, "src/store/b.h": "// SPDX-License-Identifier: MIT\n" + HEADER}),
    "a header without a guard": ("has no include guard", {"src/store/a.h": "int a();\n"}),
    "no sources at all": ("no sources found", {"README.md": "\n"}),
}
