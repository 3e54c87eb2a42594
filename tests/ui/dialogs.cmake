lexigrove_test(test_dialogs
    SOURCES
        main.cpp
        test_dialogs.cpp
        test_options_dialog.cpp
    DEPENDS ui Qt6::Test
)
