// A library without the entry point.
extern "C" __declspec(dllexport) int LoaderNoEntry()
{
    return 0;
}
