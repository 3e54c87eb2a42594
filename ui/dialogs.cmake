# The windows that the rules open, and the module that shows pages.

target_sources(ui PRIVATE
    about_dialog.cpp
    beside.cpp
    browser.cpp
    browser_view.cpp
    chart_view.cpp
    form_dialog.cpp
    game_icon.cpp
    game_windows.cpp
    help_window.cpp
    hints_dialog.cpp
    maintenance_dialog.cpp
    meaning_dialog.cpp
    options_dialog.cpp
    scheme_preview.cpp
    score_dialog.cpp
    statistics_dialog.cpp
    word_list_model.cpp
)

# Both sides of the module know what may be shown.
add_library(browser_rules STATIC browser_rules.cpp)
set_target_properties(browser_rules PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_link_libraries(browser_rules PUBLIC lexigrove_flags Qt6::Core)
target_link_libraries(ui PUBLIC browser_rules)

set(module_folder ${CMAKE_INSTALL_LIBDIR}/lexigrove)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR} OUTPUT_VARIABLE from_bin)
set_source_files_properties(browser.cpp PROPERTIES COMPILE_DEFINITIONS
    "LEXIGROVE_MODULE_FROM_EXECUTABLE=\"${from_bin}/lexigrove\";LEXIGROVE_MODULE_FOLDER=\"${CMAKE_INSTALL_FULL_LIBDIR}/lexigrove\""
)

find_package(Qt6 6.4 REQUIRED COMPONENTS WebEngineWidgets)
add_library(lexigrove-browser MODULE browser_module.cpp browser_module.hpp)
target_link_libraries(lexigrove-browser PRIVATE browser_rules Qt6::WebEngineWidgets)
set_target_properties(lexigrove-browser PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
install(TARGETS lexigrove-browser LIBRARY DESTINATION ${module_folder})
