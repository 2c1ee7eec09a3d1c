// Models the sample assembly and writes it: makesample FILE.step

#include "samples/GearboxAssembly.h"
#include "samples/StepFile.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Standard_Failure.hxx>

#include <exception>
#include <filesystem>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: makesample FILE.step\n";
        return 2;
    }
    // The translator's statistics are no news to whoever builds; its failures come back as results.
    Message::DefaultMessenger()->ChangePrinters().Clear();
    try {
        std::filesystem::path const path(argv[1]);
        if (path.has_parent_path())
            std::filesystem::create_directories(path.parent_path());
        sample::writeStep(sample::makeGearbox(), path.string());
    } catch (Standard_Failure const& failure) {
        std::cerr << "makesample: the geometry kernel failed: " << failure.GetMessageString() << '\n';
        return 1;
    } catch (std::exception const& error) {
        std::cerr << "makesample: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
