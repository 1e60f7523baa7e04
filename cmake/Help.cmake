# The help and the manual page: English ones, and translated ones where po4a is there. Below share/
# of the build's folder they stand as they are installed, so that the program finds its help there.
set(folder ${CMAKE_BINARY_DIR}/share/velvane/help)
file(MAKE_DIRECTORY ${folder})
file(GLOB english ${CMAKE_SOURCE_DIR}/help/*.html ${CMAKE_SOURCE_DIR}/help/*.png)
foreach(file ${english})
    get_filename_component(name ${file} NAME)
    file(CREATE_LINK ${file} ${folder}/${name} SYMBOLIC)
endforeach()
install(FILES ${english} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/velvane/help)

set(help_languages "")
find_program(PO4A po4a)
if(NOT PO4A)
    message(STATUS "No po4a: the help and the manual page will be in English only")
    return()
endif()
set(settings ${CMAKE_SOURCE_DIR}/help/po/po4a.cfg)
file(GLOB catalogues CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/po/*.po)
foreach(catalogue ${catalogues})
    get_filename_component(language ${catalogue} NAME_WE)
    list(APPEND help_languages ${language})
    list(APPEND pages ${folder}/docs.${language}.html)
    list(APPEND manuals ${CMAKE_BINARY_DIR}/share/man/${language}/man1/velvane.1)
endforeach()
add_custom_command(OUTPUT ${pages} ${manuals}
    COMMAND ${PO4A} --quiet --no-update --force --srcdir ${CMAKE_SOURCE_DIR}
            --destdir ${CMAKE_BINARY_DIR} ${settings}
    DEPENDS ${settings} ${catalogues} ${english} ${CMAKE_SOURCE_DIR}/data/velvane.1 VERBATIM)
add_custom_target(translated-help ALL DEPENDS ${pages} ${manuals})
add_dependencies(velvane translated-help)
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/velvane/help)
