# Compiles the texts of data/qt; QT_TEXTS_RCC is the source that carries them.
find_program(LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
foreach(texts qtbase_eu qtbase_es_more)
  add_custom_command(OUTPUT ${texts}.qm
    COMMAND ${LRELEASE} -silent ${PROJECT_SOURCE_DIR}/data/qt/${texts}.ts
      -qm ${CMAKE_CURRENT_BINARY_DIR}/${texts}.qm
    DEPENDS ${PROJECT_SOURCE_DIR}/data/qt/${texts}.ts VERBATIM)
endforeach()
configure_file(qt_texts.qrc qt_texts.qrc COPYONLY)
qt_add_resources(QT_TEXTS_RCC ${CMAKE_CURRENT_BINARY_DIR}/qt_texts.qrc)
