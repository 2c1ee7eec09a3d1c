#pragma once

namespace orv
{
class IStatusManager;
}

namespace orvexport
{

/// How far an export is, told to the progress bar, which whoever asked for the export shows and hides. It never goes
/// back. Without a bar nothing happens.
class Progress
{
public:
    explicit Progress(orv::IStatusManager* manager);

    void set(double done); ///< 0 to 1

private:
    orv::IStatusManager* status;
    int shown = 0;
};

} // namespace orvexport
