# What the build for Windows adds: where Qt stands, and what Windows shows about the program.
enable_language(RC)

set(LAUWERKRANS_QT "$ENV{LAUWERKRANS_QT}" CACHE PATH
  "Qt for Windows, as packaging/windows/bouw_qt.sh names it")
if(LAUWERKRANS_VENSTERS)
  if(NOT LAUWERKRANS_QT)
    message(FATAL_ERROR "LAUWERKRANS_QT names no Qt for Windows (packaging/windows/bouw_qt.sh)")
  endif()
  list(APPEND CMAKE_PREFIX_PATH ${LAUWERKRANS_QT})
  list(APPEND CMAKE_FIND_ROOT_PATH ${LAUWERKRANS_QT})
  # Qt's own programs (moc, rcc) are those of this machine.
  set(QT_HOST_PATH /usr)
  set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake)
endif()

# lauwerkrans_windows_gegevens(TARGET): the picture, the manifest and the version of a program.
function(lauwerkrans_windows_gegevens doel)
  set(van ${PROJECT_SOURCE_DIR}/packaging/windows)
  set(rc ${PROJECT_BINARY_DIR}/lauwerkrans.rc)
  set(manifest ${PROJECT_BINARY_DIR}/lauwerkrans.manifest)
  configure_file(${van}/lauwerkrans.rc.in ${rc} @ONLY)
  configure_file(${van}/lauwerkrans.manifest.in ${manifest} @ONLY)
  target_sources(${doel} PRIVATE ${rc})
  set_source_files_properties(${rc} PROPERTIES OBJECT_DEPENDS "${van}/lauwerkrans.ico;${manifest}")
endfunction()
