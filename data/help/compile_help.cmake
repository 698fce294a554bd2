# Compiles one help file: cmake -D CHMCMD= -D SOURCE= -D WORK= -D TARGET= -D NAME= -D START= -D LCID=
# -D TITLE= -P compile_help.cmake. Project, contents and index are made from `contenido.tsv`.

cmake_minimum_required(VERSION 3.25)

# The compiler and its readers take project, contents and index in the Windows code page of both
# languages, where these letters have the numbers of Unicode.
set(letters Á=193 É=201 Í=205 Ñ=209 Ó=211 Ú=218 Ü=220 á=225 é=233 í=237 ñ=241 ó=243 ú=250 ü=252)

function(write_ansi file text)
  foreach(pair IN LISTS letters)
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 letter)
    list(GET pair 1 code)
    string(ASCII ${code} byte)
    string(REPLACE ${letter} "${byte}" text "${text}")
  endforeach()
  file(WRITE ${file} "${text}")
endfunction()

# Refuses a line of the table. The first line of what is said is for editors: nothing in front of the
# file's name, and not broken into lines.
function(refuse line what)
  message(NOTICE "${SOURCE}/contenido.tsv:${line}: ${what}")
  message(FATAL_ERROR "${NAME}.chm was not compiled.")
endfunction()

# Refuses a title with a letter that write_ansi does not know, or that lists and site maps take for
# something else: " & ; < > [ \ ]
function(check_title number title)
  set(rest "${title}")
  foreach(pair IN LISTS letters)
    string(REGEX REPLACE "=.*" "" letter ${pair})
    string(REPLACE ${letter} "" rest "${rest}")
  endforeach()
  if(rest MATCHES "[^ !#-%'-:=?-Z^-~]")
    refuse(${number} "a letter that titles may not have: ${title}")
  endif()
endfunction()

# Refuses a bad row; sets `page` to its page.
function(check_row number row)
  if(NOT row MATCHES "^([A-Za-z0-9_]+\\.htm)\t([^\t]+)\t[1-9]$")
    refuse(${number} "not page, title and level: ${row}")
  endif()
  set(page ${CMAKE_MATCH_1})
  check_title(${number} "${CMAKE_MATCH_2}")
  if(NOT EXISTS ${SOURCE}/${page})
    refuse(${number} "no page ${page}")
  elseif(page IN_LIST named)
    refuse(${number} "page ${page} is named twice")
  endif()
  set(page ${page} PARENT_SCOPE)
endfunction()

# Refuses a page of the folder that is not `named`.
function(check_pages last_line)
  file(GLOB pages RELATIVE ${SOURCE} ${SOURCE}/*.htm)
  foreach(page IN LISTS pages)
    if(NOT page IN_LIST named)
      refuse(${last_line} "the page ${page} has no row")
    endif()
  endforeach()
endfunction()

# Reads the table into `entries` (page, title and level with tabs between); refuses a bad row. Row by
# row, as a list would take some letters for its own.
function(read_contents)
  file(READ ${SOURCE}/contenido.tsv text)
  string(REGEX REPLACE "([^\n])$" "\\1\n" text "${text}")
  set(number 0)
  set(entries)
  set(named)
  while(NOT text STREQUAL "")
    math(EXPR number "${number} + 1")
    string(FIND "${text}" "\n" end)
    string(SUBSTRING "${text}" 0 ${end} row)
    math(EXPR next "${end} + 1")
    string(SUBSTRING "${text}" ${next} -1 text)
    if(number GREATER 1)
      check_row(${number} "${row}")
      list(APPEND named ${page})
      list(APPEND entries "${row}")
    endif()
  endwhile()
  check_pages(${number})
  set(entries "${entries}" PARENT_SCOPE)
endfunction()

# Sorts the entries as a dictionary does: an accent makes no other letter, Ñ follows N.
function(sort_by_title)
  set(keyed)
  foreach(entry IN LISTS entries)
    string(REGEX REPLACE "^[^\t]+\t([^\t]+)\t.*" "\\1" key "${entry}")
    string(TOLOWER "${key}" key)
    foreach(pair Á=a É=e Í=i Ñ=n~ Ó=o Ú=u Ü=u á=a é=e í=i ñ=n~ ó=o ú=u ü=u)
      string(REPLACE "=" ";" pair ${pair})
      list(GET pair 0 letter)
      list(GET pair 1 plain)
      string(REPLACE ${letter} ${plain} key "${key}")
    endforeach()
    list(APPEND keyed "${key}\t${entry}")
  endforeach()
  list(SORT keyed)
  list(TRANSFORM keyed REPLACE "^[^\t]+\t(.*)$" "\\1")
  set(entries "${keyed}" PARENT_SCOPE)
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
sort_by_title()
write_site_map(${WORK}/${NAME}.hhk FALSE)
execute_process(COMMAND ${CHMCMD} --no-html-scan ${NAME}.hhp WORKING_DIRECTORY ${WORK}
  OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${NAME}.chm was not compiled:\n${said}")
endif()
file(COPY ${WORK}/${NAME}.chm DESTINATION ${TARGET})
file(COPY ${pages} ${SOURCE}/contenido.tsv DESTINATION ${TARGET}/${NAME})
