#pragma once

#include <afxwin.h>

#include <QString>
#include <QWidget>

#include <vector>

namespace orvtour
{

/// One comment as it stands in the feed pane.
struct BlockOnShow {
    CWnd* dialog = nullptr;
    bool hasPicture = false;
    bool hasDelete = false;
    QString date;
    QString text;
};

/// The visible dialogs below a window that hold a control of that id, from the top of the screen down.
std::vector<CWnd*> dialogsWith(QWidget& window, int controlId);

/// The first of them; null without one.
CWnd* dialogWith(QWidget& window, int controlId);

/// The comments on show, from the top down. Automatic entries count too.
std::vector<BlockOnShow> blocksOnShow(QWidget& window);

/// Control ids of the plug-in's windows that a user's hands reach for.
namespace control
{
inline constexpr int login = 1001;
inline constexpr int email = 1017;
inline constexpr int password = 1018;
inline constexpr int prompt = 270;
inline constexpr int push = 271;
inline constexpr int share = 272;
inline constexpr int comment = 2005;
inline constexpr int submit = 2006;
inline constexpr int blockPicture = 2001;
inline constexpr int blockText = 2002;
inline constexpr int blockDate = 2004;
inline constexpr int blockDelete = 1037;
inline constexpr int accountState = 1029;
inline constexpr int accountAction = 1022;
} // namespace control

} // namespace orvtour
