// For a build with the address sanitizer: what the web engine does with its own memory is not this game's.

extern "C" const char* __asan_default_options();

extern "C" const char* __asan_default_options()
{
    return "new_delete_type_mismatch=0:detect_leaks=0";
}
