#pragma once

#include "viewer/app/RecentFiles.h"

#include <QWidget>

#include <string>

class QListWidget;

namespace orvviewer
{

/// What stands in the view's place while no model is open: a way to open one, and the models opened last with their
/// previews.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    void showRecent(RecentFiles const& files);

signals:
    void openWanted();
    void fileWanted(std::wstring const& path);

private:
    QListWidget* list;
    QWidget* heading;
};

} // namespace orvviewer
