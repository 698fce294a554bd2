# Copies each data file from FROM to TO, only where it is missing there.
foreach(name DPadralLec.mdb DPadralMod.mdb)
  if(NOT EXISTS ${TO}/${name})
    file(COPY ${FROM}/${name} DESTINATION ${TO})
  endif()
endforeach()
