#pragma once

#include "viewer/commands/CommandId.h"

#include <QAction>
#include <QKeySequence>
#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <string>

namespace orvviewer
{

/// The viewer's commands by number, each an action that ribbon, menus and keys share.
class CommandTable : public QObject
{
    Q_OBJECT

public:
    struct Command {
        QString text;
        QString tip;  ///< a sentence
        QString icon; ///< name of a picture under :/icons, without its ending; may be empty
        QKeySequence keys;
        std::function<void()> run;
        std::function<bool()> isEnabled; ///< empty: always
        std::function<bool()> isChecked; ///< empty: not a switch
    };

    using QObject::QObject;

    /// The action is added to `window`, so that its keys work there.
    void add(CommandId id, Command command, QWidget* window);
    QAction* action(unsigned int id) const; ///< null for a number that isn't here
    bool isEnabled(unsigned int id) const;
    bool isChecked(unsigned int id) const;
    /// False where the command isn't here or isn't enabled.
    bool run(unsigned int id);
    void refresh(); ///< makes the actions agree with what is enabled and checked now

private:
    struct Entry {
        Command command;
        QAction* action;
    };
    std::map<unsigned int, Entry> entries;
};

} // namespace orvviewer
