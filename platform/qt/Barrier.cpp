#include "platform/Process.h"

#include <cstdio>
#include <exception>

namespace orvplatform
{
namespace
{
std::function<void(const std::string&)>& exceptionHandler()
{
    static std::function<void(const std::string&)> handler;
    return handler;
}

void report(const std::string& what)
{
    if (exceptionHandler())
        exceptionHandler()(what);
    else
        std::fprintf(stderr, "A command failed: %s\n", what.c_str());
}
} // namespace

void setExceptionHandler(std::function<void(const std::string&)> handler)
{
    exceptionHandler() = std::move(handler);
}

bool guarded(const std::function<void()>& function)
{
    try {
        function();
        return true;
    } catch (const std::exception& error) {
        report(error.what());
    } catch (...) {
        report("an unknown error");
    }
    return false;
}
} // namespace orvplatform
