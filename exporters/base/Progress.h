#pragma once

namespace orv
{
class IStatusManager;
}

namespace orvexport
{

/// The progress bar, shown while this lives. It never goes back. Without a bar nothing happens.
class Progress
{
public:
    explicit Progress(orv::IStatusManager* manager);
    ~Progress();
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    void set(double done); ///< 0 to 1

private:
    orv::IStatusManager* status;
    int shown = 0;
};

} // namespace orvexport
