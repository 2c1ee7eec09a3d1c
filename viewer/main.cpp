#include "viewer/app/Program.h"

int main(int count, char** arguments)
{
    return orvviewer::runProgram(count, arguments);
}
