// The kernel is built to turn signals into exceptions where this is defined ahead of its headers.
#define OCC_CONVERT_SIGNALS

#include "viewer/import/CrashGuard.h"

#include <OSD.hxx>
#include <OSD_Signal.hxx>
#include <Standard_ErrorHandler.hxx>

#include <array>
#include <csignal>
#include <cstddef>

namespace orvviewer
{

namespace
{

/// Invalid accesses go to the kernel's handlers while this lives; the user's signals keep the meaning they had.
class KernelSignals
{
public:
    KernelSignals()
    {
        for (std::size_t i = 0; i < faults.size(); ++i) {
            sigaction(faults[i], nullptr, &earlierFault[i]);
        }
        for (std::size_t i = 0; i < wishes.size(); ++i) {
            sigaction(wishes[i], nullptr, &earlierWish[i]);
        }
        OSD::SetSignal(OSD_SignalMode_Set, Standard_False);
        for (std::size_t i = 0; i < wishes.size(); ++i) {
            sigaction(wishes[i], &earlierWish[i], nullptr);
        }
    }
    ~KernelSignals()
    {
        for (std::size_t i = 0; i < faults.size(); ++i) {
            sigaction(faults[i], &earlierFault[i], nullptr);
        }
    }
    KernelSignals(KernelSignals const&) = delete;
    KernelSignals& operator=(KernelSignals const&) = delete;

private:
    static constexpr std::array faults{SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGSYS};
    static constexpr std::array wishes{SIGHUP, SIGINT, SIGQUIT, SIGTERM};
    std::array<struct sigaction, faults.size()> earlierFault{};
    std::array<struct sigaction, wishes.size()> earlierWish{};
};

} // namespace

bool runGuarded(std::function<void()> const& call)
{
    KernelSignals const signals;
    try {
        OCC_CATCH_SIGNALS
        call();
        return true;
    } catch (OSD_Signal const&) {
        return false;
    }
}

} // namespace orvviewer
