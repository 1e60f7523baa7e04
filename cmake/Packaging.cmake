# `cpack` makes a Debian package of what `cmake --install` installs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velvane)
set(CPACK_PACKAGE_VENDOR Orvikel)
set(CPACK_PACKAGE_CONTACT "Velvane maintainers <maintainers@orvikel.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${VELVANE_SITE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DESCRIPTION
"A demo is a list of steps: move the cursor, click, hold, type, press a
shortcut, wait, switch to another application. Velvane composes such demos
in an editor that shows the cursor's path over a picture of the screen,
renders them to H.264 movies, and runs them live on an X11 desktop.")
set(CPACK_STRIP_FILES ON)
# So that what is written while installing has the paths that it will have.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Captions look the same everywhere only with their fonts.
set(CPACK_DEBIAN_PACKAGE_DEPENDS hicolor-icon-theme)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-inter, fonts-dejavu-core, fonts-noto-color-emoji, xdg-utils, xdg-desktop-portal")

install(FILES ${CMAKE_SOURCE_DIR}/data/debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
find_program(GZIP gzip REQUIRED)
# Compressed as Debian wants them: without a name and a time, so that each build makes the same.
function(velvane_compressed source destination)
    get_filename_component(name ${source} NAME)
    set(folder ${CMAKE_BINARY_DIR}/compressed/${destination})
    add_custom_command(OUTPUT ${folder}/${name}.gz
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND ${GZIP} -9nc ${source} > ${folder}/${name}.gz
        DEPENDS ${source} VERBATIM)
    install(FILES ${folder}/${name}.gz DESTINATION ${destination})
    set(compressed ${compressed} ${folder}/${name}.gz PARENT_SCOPE)
endfunction()
velvane_compressed(${CMAKE_SOURCE_DIR}/data/debian/changelog ${CMAKE_INSTALL_DOCDIR})
velvane_compressed(${CMAKE_SOURCE_DIR}/data/velvane.1 ${CMAKE_INSTALL_MANDIR}/man1)
foreach(language ${help_languages})
    velvane_compressed(${CMAKE_BINARY_DIR}/share/man/${language}/man1/velvane.1
        ${CMAKE_INSTALL_MANDIR}/${language}/man1)
endforeach()
add_custom_target(compressed ALL DEPENDS ${compressed})
include(CPack)
