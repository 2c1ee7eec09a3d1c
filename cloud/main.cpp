#include "cloud/app/CommandLine.h"

#include <iostream>

int main(int argc, char** argv)
{
    return orvcloud::runCommandLine({argv + 1, argv + argc}, std::cin, std::cout, std::cerr);
}
