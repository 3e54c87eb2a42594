# What software centres show of the game. The project has no page of its own yet: the host stands for one, and is nobody's.
set(LEXIGROVE_PAGE "https://example.org/lexigrove" CACHE STRING "The project's page, below which its files can be fetched")
set(LEXIGROVE_ID "org.example.lexigrove" CACHE STRING "The program's name among all programs, a reversed host name")

set(changelog ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})
file(STRINGS ${changelog} headings REGEX "^## \\[[0-9]") # ## [1.2.3] - 2026-12-24
foreach(heading IN LISTS headings)
    string(REGEX REPLACE "^## \\[(.*)\\] - (.*)$" "\n    <release version=\"\\1\" date=\"\\2\"/>" release "${heading}")
    string(APPEND releases "${release}")
endforeach()

set(metainfo ${CMAKE_CURRENT_BINARY_DIR}/${LEXIGROVE_ID}.metainfo.xml)
configure_file(lexigrove.metainfo.xml ${metainfo} @ONLY)
install(FILES ${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
