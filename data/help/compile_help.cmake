# Compiles one help file: cmake -D CHMCMD= -D SOURCE= -D WORK= -D TARGET= -D NAME= -D START= -D LCID=
# -D TITLE= -P compile_help.cmake. Project, contents and index are made from `contenido.tsv`.

# The compiler and its readers take project, contents and index in the Windows code page of both
# languages, where these letters have the numbers of Unicode.
function(write_ansi file text)
  foreach(pair Á=193 É=201 Í=205 Ñ=209 Ó=211 Ú=218 Ü=220 á=225 é=233 í=237 ñ=241 ó=243 ú=250 ü=252)
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 letter)
    list(GET pair 1 code)
    string(ASCII ${code} byte)
    string(REPLACE ${letter} "${byte}" text "${text}")
  endforeach()
  file(WRITE ${file} "${text}")
endfunction()

# Reads the table into `entries` (page, title and level with tabs between); refuses a bad row.
function(read_contents)
  file(STRINGS ${SOURCE}/contenido.tsv rows ENCODING UTF-8)
  set(number 0)
  set(entries)
  foreach(row IN LISTS rows)
    math(EXPR number "${number} + 1")
    if(number EQUAL 1)
      continue()
    endif()
    if(NOT row MATCHES "^([^\t]+\\.htm)\t[^\t\"<>&]+\t[1-9]$")
      message(FATAL_ERROR "${SOURCE}/contenido.tsv:${number}: not page, title and level: ${row}")
    endif()
    if(NOT EXISTS ${SOURCE}/${CMAKE_MATCH_1})
      message(FATAL_ERROR "${SOURCE}/contenido.tsv:${number}: no page ${CMAKE_MATCH_1}")
    endif()
    list(APPEND entries "${row}")
  endforeach()
  set(entries "${entries}" PARENT_SCOPE)
endfunction()

# Writes the entries as a site map; `nested` follows their levels.
function(write_site_map file nested)
  set(text "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<html><body>\n<ul>\n")
  set(depth 1)
  foreach(entry IN LISTS entries)
    string(REPLACE "\t" ";" entry "${entry}")
    list(GET entry 0 page)
    list(GET entry 1 title)
    list(GET entry 2 level)
    while(nested AND depth LESS level)
      string(APPEND text "<ul>\n")
      math(EXPR depth "${depth} + 1")
    endwhile()
    while(nested AND depth GREATER level)
      string(APPEND text "</ul>\n")
      math(EXPR depth "${depth} - 1")
    endwhile()
    string(APPEND text "<li><object type=\"text/sitemap\"><param name=\"Name\" value=\"${title}\">"
      "<param name=\"Local\" value=\"${page}\"></object>\n")
  endforeach()
  foreach(open RANGE 1 ${depth})
    string(APPEND text "</ul>\n")
  endforeach()
  write_ansi(${file} "${text}</body></html>\n")
endfunction()

function(write_project)
  list(TRANSFORM entries REPLACE "\t.*" "" OUTPUT_VARIABLE pages)
  list(JOIN pages "\n" pages)
  write_ansi(${WORK}/${NAME}.hhp "[OPTIONS]
Compatibility=1.1 or later
Compiled file=${NAME}.chm
Contents file=${NAME}.hhc
Index file=${NAME}.hhk
Default topic=${START}
Language=${LCID}
Title=${TITLE}
Full-text search=Yes

[FILES]
${pages}
")
endfunction()

read_contents()
# Emptied first, so that a page that was renamed does not stay behind.
file(REMOVE_RECURSE ${WORK} ${TARGET}/${NAME} ${TARGET}/${NAME}.chm)
file(GLOB pages ${SOURCE}/*.htm)
file(COPY ${pages} DESTINATION ${WORK})
write_project()
write_site_map(${WORK}/${NAME}.hhc TRUE)
# The index goes by title.
list(TRANSFORM entries REPLACE "^([^\t]+)\t([^\t]+)" "\\2\t\\1")
list(SORT entries)
list(TRANSFORM entries REPLACE "^([^\t]+)\t([^\t]+)" "\\2\t\\1")
write_site_map(${WORK}/${NAME}.hhk FALSE)
execute_process(COMMAND ${CHMCMD} --no-html-scan ${NAME}.hhp WORKING_DIRECTORY ${WORK}
  OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${NAME}.chm was not compiled:\n${said}")
endif()
file(COPY ${WORK}/${NAME}.chm DESTINATION ${TARGET})
file(COPY ${pages} ${SOURCE}/contenido.tsv DESTINATION ${TARGET}/${NAME})
