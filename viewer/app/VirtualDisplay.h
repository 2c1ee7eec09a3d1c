#pragma once

#include <memory>
#include <string>

class QProcess;

namespace orvviewer
{

/// A display of the process's own for drawing where there is none. It ends with the object.
class VirtualDisplay
{
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(VirtualDisplay const&) = delete;
    VirtualDisplay& operator=(VirtualDisplay const&) = delete;

    /// Starts it and sets $DISPLAY. False, with a sentence, where it can't be started.
    bool start(std::wstring& error);

private:
    std::unique_ptr<QProcess> server;
};

} // namespace orvviewer
