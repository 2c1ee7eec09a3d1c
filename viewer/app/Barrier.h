#pragma once

#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace orvviewer
{

/// The wall around calls into plug-ins: some of their exceptions are uncaught by design, and the viewer must survive
/// them. Each ends here as a sentence for the user.
class Barrier
{
public:
    /// `report` is given the sentence.
    explicit Barrier(std::function<void(std::wstring const&)> report) : tell(std::move(report)) {}

    /// Runs the call; false where an exception came out of it.
    template <class Call>
    bool run(Call&& call) const
    {
        try {
            std::forward<Call>(call)();
            return true;
        } catch (std::exception const& exception) {
            caught(exception.what());
        } catch (...) {
            caught("");
        }
        return false;
    }

    /// What run does with an exception; also for exceptions that were caught elsewhere. `what` is UTF-8.
    void caught(std::string const& what) const;

private:
    std::function<void(std::wstring const&)> tell;
};

} // namespace orvviewer
