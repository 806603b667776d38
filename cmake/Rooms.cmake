# The rooms of the program: a folder is a target, which links the libraries that it uses itself and no others.

# The rules and the data: what needs neither Qt nor libcurl. Without a desktop's libraries these can be built and tested
# alone.
set(TARNWICK_CORE_ROOMS base platform platform/os platform/sqlite difference finding history holes page_rules store uucode mail alerts delivery report engine program)
# The machine with its network and its desktop, and the two front ends.
set(TARNWICK_OUTER_ROOMS platform/web platform/events platform/process platform/sound platform/secrets platform/desktop
    exchange/json exchange/list exchange/foreign
    cli/terminal cli/verbs
    ui/controls ui/baseline ui/site ui/settings ui/exchange ui/outbox ui/rows ui/history ui/details ui/main_window
    app)
set(TARNWICK_ROOMS ${TARNWICK_CORE_ROOMS})
if(NOT TARNWICK_CORE_ONLY)
  list(APPEND TARNWICK_ROOMS ${TARNWICK_OUTER_ROOMS})
endif()

# tarnwick_room(<name> SOURCES ... [HOT ...] [PUBLIC ...] [PRIVATE ...]): the library tarnwick_<name> of the folder that says so.
# PUBLIC are the rooms whose headers its own headers include, PRIVATE the libraries and what only its sources use:
# neither less nor more, which tests/house_rules.py looks after. HOT are the sources with the inner loops that every check
# goes through: the release is built for few compiler seconds, but these gain a third from all that the compiler can do
# (bench/hot_pieces_bench.cpp).
function(tarnwick_room name)
  cmake_parse_arguments(ARG "" "" "SOURCES;HOT;PUBLIC;PRIVATE" ${ARGN})
  add_library(tarnwick_${name} STATIC ${ARG_SOURCES} ${ARG_HOT})
  if(ARG_HOT)
    set_source_files_properties(${ARG_HOT} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O3>)
  endif()
  target_link_libraries(tarnwick_${name} PUBLIC tarnwick_flags ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
  if(name MATCHES "^ui_")
    tarnwick_window_room(tarnwick_${name})
  endif()
endfunction()

# A room of the window. The toolkit's headers are most of what compiling one costs, so they are compiled once, with the
# controls that all others build on.
function(tarnwick_window_room target)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  if(target STREQUAL tarnwick_ui_controls)
    target_precompile_headers(${target} PRIVATE
      <algorithm> <array> <functional> <memory> <optional> <string> <vector>
      <QApplication> <QCheckBox> <QDialog> <QGridLayout> <QGroupBox> <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit>
      <QListWidget> <QPainter> <QPointer> <QPushButton> <QTableView>)
  else()
    target_precompile_headers(${target} REUSE_FROM tarnwick_ui_controls)
  endif()
endfunction()
