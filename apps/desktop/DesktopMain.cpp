#include "apps/desktop/WindowProgram.h"

int main(int argumentCount, char** arguments)
{
    return Desktop::RunWindow(argumentCount, arguments);
}
