# Lays the files of ASSETS into the program folder FOLDER. What the user may change (the database, the mail template, the
# report) is laid there only when it is missing; the rest is brought up to date. Needs the sqlite3 tool SQLITE3.
file(MAKE_DIRECTORY "${FOLDER}/images" "${FOLDER}/reports")

if(NOT EXISTS "${FOLDER}/tarnwick.mdb")
  # Made under another name first: a failure leaves no half-made database behind.
  set(fresh "${FOLDER}/tarnwick.mdb.new")
  file(REMOVE "${fresh}")
  execute_process(
    COMMAND "${SQLITE3}" -batch -bail "${fresh}"
    INPUT_FILE "${ASSETS}/schema.sql"
    OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
  file(RENAME "${fresh}" "${FOLDER}/tarnwick.mdb")
endif()

if(NOT EXISTS "${FOLDER}/email.txt")
  file(COPY_FILE "${ASSETS}/email.txt" "${FOLDER}/email.txt")
endif()

file(COPY_FILE "${ASSETS}/help.html" "${FOLDER}/help.html" ONLY_IF_DIFFERENT)
file(GLOB images RELATIVE "${ASSETS}" "${ASSETS}/images/*.bmp" "${ASSETS}/images/*.png")
foreach(file IN LISTS images ITEMS reports/green.jpg reports/red.jpg)
  file(COPY_FILE "${ASSETS}/${file}" "${FOLDER}/${file}" ONLY_IF_DIFFERENT)
endforeach()
