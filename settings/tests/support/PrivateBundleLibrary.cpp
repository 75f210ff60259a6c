// The library of a private bundle, for the loader's tests.
extern "C" __attribute__((visibility("default"))) int OrvanPrivateBundleAnswer()
{
    return 42;
}
