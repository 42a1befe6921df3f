#include "apps/cli/Tool.h"

int main(int argumentCount, char** arguments)
{
    return Cli::RunTool(argumentCount, arguments);
}
