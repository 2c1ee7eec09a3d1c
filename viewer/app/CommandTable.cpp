#include "viewer/app/CommandTable.h"

#include <QIcon>
#include <QWidget>

#include <utility>

namespace orvviewer
{

void CommandTable::add(CommandId id, Command command, QWidget* window)
{
    auto* action = new QAction(command.text, this);
    if (!command.icon.isEmpty()) {
        action->setIcon(QIcon(":/icons/" + command.icon + ".svg"));
    }
    action->setShortcut(command.keys);
    action->setStatusTip(command.tip);
    action->setCheckable(static_cast<bool>(command.isChecked));
    auto const keys = command.keys.toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? command.tip : command.tip + " (" + keys + ")");
    connect(action, &QAction::triggered, this, [this, id] { run(id); });
    window->addAction(action);
    entries[id] = {std::move(command), action};
}

QAction* CommandTable::action(unsigned int id) const
{
    auto const found = entries.find(id);
    return found == entries.end() ? nullptr : found->second.action;
}

bool CommandTable::isEnabled(unsigned int id) const
{
    auto const found = entries.find(id);
    return found != entries.end() && (!found->second.command.isEnabled || found->second.command.isEnabled());
}

bool CommandTable::isChecked(unsigned int id) const
{
    auto const found = entries.find(id);
    return found != entries.end() && found->second.command.isChecked && found->second.command.isChecked();
}

bool CommandTable::run(unsigned int id)
{
    if (!isEnabled(id)) {
        return false;
    }
    // A copy: the command may be what ends this table.
    auto const command = entries.at(id).command.run;
    command();
    return true;
}

void CommandTable::refresh()
{
    for (auto const& [id, entry] : entries) {
        entry.action->setEnabled(isEnabled(id));
        if (entry.action->isCheckable()) {
            entry.action->setChecked(isChecked(id));
        }
    }
}

} // namespace orvviewer
