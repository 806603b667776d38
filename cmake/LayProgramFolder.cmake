# Lays the files of ASSETS into the program folder FOLDER, and where these are given the pages of the help that lie in
# HELP and the translations that lie in TRANSLATIONS. What is there is brought up to date. What the user may change (the
# database, the mail templates, the report) is none of it: the program's first start lays that, from the folder `fresh`.
# Needs the sqlite3 tool SQLITE3.
file(MAKE_DIRECTORY "${FOLDER}/images" "${FOLDER}/reports" "${FOLDER}/fresh" "${FOLDER}/channels")
set(readable PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# The pristine database. Made under another name first: a failure leaves no half-made one behind.
set(fresh "${FOLDER}/fresh/tarnwick.mdb")
file(REMOVE "${fresh}.new")
execute_process(
  COMMAND "${SQLITE3}" -batch -bail "${fresh}.new"
  INPUT_FILE "${ASSETS}/schema.sql"
  OUTPUT_QUIET
  COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD "${fresh}.new" ${readable})
file(RENAME "${fresh}.new" "${fresh}")

# lay(FROM NAME): brings the file NAME of the program folder up to date with the file FROM.
function(lay from name)
  file(COPY_FILE "${from}" "${FOLDER}/${name}" ONLY_IF_DIFFERENT)
  file(CHMOD "${FOLDER}/${name}" ${readable})
endfunction()

lay("${ASSETS}/email.txt" fresh/email.txt)
lay("${ASSETS}/recovered.txt" fresh/recovered.txt)
lay("${ASSETS}/help.html" help.html)
file(GLOB images RELATIVE "${ASSETS}" "${ASSETS}/images/*.bmp" "${ASSETS}/images/*.png" "${ASSETS}/channels/*.txt")
foreach(file IN LISTS images ITEMS reports/green.jpg reports/red.jpg)
  lay("${ASSETS}/${file}" "${file}")
endforeach()

if(EXISTS "${HELP}/index.html")
  file(REMOVE_RECURSE "${FOLDER}/help")  # a page that is no more would be left
  file(GLOB pages RELATIVE "${HELP}" "${HELP}/*.*" "${HELP}/images/*")
  file(MAKE_DIRECTORY "${FOLDER}/help/images")
  foreach(file IN LISTS pages)
    lay("${HELP}/${file}" "help/${file}")
  endforeach()
endif()

if(TRANSLATIONS)
  file(GLOB translations RELATIVE "${TRANSLATIONS}" "${TRANSLATIONS}/tarnwick_*.qm")
  foreach(file IN LISTS translations)
    file(MAKE_DIRECTORY "${FOLDER}/translations")
    lay("${TRANSLATIONS}/${file}" "translations/${file}")
  endforeach()
endif()
