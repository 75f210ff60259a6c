// Linked into every program of a sanitizer build (the "sanitize" and "fuzz"
// presets), so that a test, and every program a test starts, checks for leaks
// with the same rules however it is run: ctest, by hand or from a shell.

extern "C" {

const char* __asan_default_options()
{
    return "detect_leaks=1";
}

// Memory that system libraries allocate once and keep for the life of the
// process. Our own code gets no entries here: a leak of ours is a bug to fix.
const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

} // extern "C"
