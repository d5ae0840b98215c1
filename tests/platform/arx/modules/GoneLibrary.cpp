// A DLL that lies where no module finds it.
extern "C" __declspec(dllexport) int Gone()
{
    return 1;
}
