# What `cmake --install` puts where, and the Debian package that `cpack` makes
# of it. The folders below the prefix are fixed: the programs look for their
# data in ../share/fragsmith and for the unzip tool in ../lib/fragsmith.

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(made ${PROJECT_BINARY_DIR}/packaging)

foreach(program fragsmith fragsmith-cli)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION bin)
  endif()
endforeach()
install(TARGETS wzunzip RUNTIME DESTINATION lib/fragsmith)

file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*.tga)
install(FILES ${pictures} DESTINATION share/fragsmith)

# The starter settings name the folder of the unzip tool, which is known only
# now that the prefix is.
install(
  CODE "
    set(WINZIP_DIR \"\${CMAKE_INSTALL_PREFIX}/lib/fragsmith\")
    cmake_path(NATIVE_PATH WINZIP_DIR WINZIP_DIR)
    configure_file(\"${PROJECT_SOURCE_DIR}/resources/fgs.ini.in\"
                   \"${made}/fgs.ini\" @ONLY NEWLINE_STYLE CRLF)")
install(FILES ${made}/fgs.ini DESTINATION share/fragsmith)

if(WIN32 OR APPLE)
  return()
endif()

install(
  DIRECTORY ${packaging}/share/
  DESTINATION share
  PATTERN man EXCLUDE)
install(FILES ${packaging}/debian/copyright DESTINATION share/doc/fragsmith)

# fragsmith_install_compressed(FILE FOLDER): without the time and name of the
# file, so that equal sources make equal packages.
find_program(FRAGSMITH_GZIP gzip REQUIRED)
mark_as_advanced(FRAGSMITH_GZIP)
set(compressed)
function(fragsmith_install_compressed file folder)
  get_filename_component(name ${file} NAME)
  set(copy ${made}/${name})
  add_custom_command(
    OUTPUT ${copy}.gz
    COMMAND ${CMAKE_COMMAND} -E copy ${file} ${copy}
    COMMAND ${FRAGSMITH_GZIP} -9nf ${copy}
    DEPENDS ${file}
    VERBATIM)
  install(FILES ${copy}.gz DESTINATION ${folder})
  set(compressed ${compressed} ${copy}.gz PARENT_SCOPE)
endfunction()
file(MAKE_DIRECTORY ${made})
file(GLOB pages CONFIGURE_DEPENDS ${packaging}/share/man/man1/*.1)
foreach(page IN LISTS pages)
  fragsmith_install_compressed(${page} share/man/man1)
endforeach()
fragsmith_install_compressed(${packaging}/debian/changelog share/doc/fragsmith)
add_custom_target(fragsmith_compressed ALL DEPENDS ${compressed})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME fragsmith)
set(CPACK_PACKAGE_CONTACT "Fragsmith maintainers <fragsmith@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for bots of Quake III Arena")
# The installation runs with the prefix that the package will have.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://fragsmith.example)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Fragsmith makes and edits bots for Quake III Arena and the games that
share its bot files. A bot is five plain-text files: how it plays at three
skill levels, which weapons and items it likes, what it says, and how it
looks. The window shows all of it with sliders and lists; bots are loaded
from folders or out of installed packages, checked, and written in the form
that the game takes, in the game's folder layout and packed if wanted.
.
The program fragsmith-cli makes, loads and lists bots from scripts.
.
The game itself is not part of this package.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
