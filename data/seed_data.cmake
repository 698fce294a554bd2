# Puts each data file of FROM into TO where it is missing there, whole or not at all. A file that is
# there is never replaced: it holds what users saved. Of the read-only file only the catalogue rows
# are brought up to date, by the program MAKE_CATALOGUE from the folder ROWS.
file(MAKE_DIRECTORY ${TO})
foreach(name DPadralLec.mdb DPadralMod.mdb)
  if(NOT EXISTS ${TO}/${name})
    file(COPY_FILE ${FROM}/${name} ${TO}/${name}.nuevo)
    file(RENAME ${TO}/${name}.nuevo ${TO}/${name})
  endif()
endforeach()

execute_process(COMMAND ${MAKE_CATALOGUE} --refresh ${ROWS} ${TO}/DPadralLec.mdb
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "The rows in ${TO}/DPadralLec.mdb are not up to date.")
endif()
