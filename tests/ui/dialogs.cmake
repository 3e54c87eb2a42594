lexigrove_test(test_dialogs
    SOURCES
        main.cpp
        test_dialogs.cpp
        test_options_dialog.cpp
    DEPENDS ui Qt6::Test
)

# Real pages of the web engine: a program of its own, for the engine wants much of a machine.
find_package(Qt6 6.4 REQUIRED COMPONENTS Network WebEngineWidgets)
lexigrove_test(test_browser
    SOURCES
        main.cpp
        test_browser.cpp
    DEPENDS ui Qt6::Test Qt6::Network Qt6::WebEngineWidgets
)
if(LEXIGROVE_SANITIZE)
    target_sources(test_browser PRIVATE engine_sanitizer.cpp)
endif()
add_dependencies(test_browser lexigrove-browser)
add_custom_command(TARGET test_browser POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E create_symlink
        $<TARGET_FILE:lexigrove-browser> $<TARGET_FILE_DIR:test_browser>/lexigrove-browser.so
    VERBATIM
)
