// SPDX-License-Identifier: MIT
#include "app/command_line.h"
#include "app/start_window.h"

int main(int argumentCount, char** argumentValues)
{
    QStringList arguments;
    for (int i = 1; i < argumentCount; ++i)
        arguments << QString::fromLocal8Bit(argumentValues[i]);
    if (Quillory::IsCommandLine(arguments))
        return Quillory::RunCommandLine(arguments);
    return Quillory::RunWindow(argumentCount, argumentValues);
}
