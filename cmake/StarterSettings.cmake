# Writes FOLDER/fgs.ini from TEMPLATE, unless one is there already: the unzip
# tool is looked for in FOLDER, everything else is left empty.

cmake_minimum_required(VERSION 3.22)

if(EXISTS ${FOLDER}/fgs.ini)
  return()
endif()
cmake_path(NATIVE_PATH FOLDER WINZIP_DIR)
configure_file(${TEMPLATE} ${FOLDER}/fgs.ini @ONLY NEWLINE_STYLE CRLF)
