// A program that keeps running until it is ended, as an installed program's tray process does.

#include <windows.h>

int main()
{
    ::Sleep(120000);
    return 0;
}
