#include "app/command_line.h"

int main(int argumentCount, char** argumentValues)
{
    QStringList arguments;
    for (int i = 1; i < argumentCount; ++i)
        arguments << QString::fromLocal8Bit(argumentValues[i]);
    return Quillory::RunCommandLine(arguments);
}
