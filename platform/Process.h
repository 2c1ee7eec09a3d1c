#pragma once
// What a program sets up around this layer, without a word of the toolkit below it.

#include <functional>
#include <optional>
#include <string>

namespace orvplatform
{
// Call it first in main, before the application object: a pixel becomes a device pixel (the toolkit's own scaling is
// off).
void prepareProcess();

// The screen's logical resolution in dots per inch, 96 at least where the screen doesn't tell.
double logicalDpi();

// The service whose reachability counts as the connection. The host is a name or an address.
void setServiceAddress(const std::string& host, unsigned short port);
// Forces the answer of InternetGetConnectedState; empty goes back to the system's.
void setConnectedForTest(std::optional<bool> connected);

// Takes the place of opening an address with the desktop's program; empty goes back to it.
using OpenAddress = std::function<bool(const std::wstring& address)>;
void setOpenAddressHook(OpenAddress hook);

// Called with an exception's text when a message handler let one out. Without a handler the text goes to standard
// error.
void setExceptionHandler(std::function<void(const std::string&)> handler);
// Runs the function behind the same barrier; false when it threw.
bool guarded(const std::function<void()>& function);

// Why the last LoadLibraryW of this thread failed: the bare reason, to stand in a sentence that names the library.
std::wstring lastModuleError();
// Makes GetModuleHandleW(name) answer with a module whose resources are those of the file (a library or a .res file).
// For programs that contain the code of a library; false when the file can't be read.
bool registerModuleFile(const std::wstring& name, const std::string& file);

int waitCursorDepth(); // how many times the busy cursor is on
} // namespace orvplatform
