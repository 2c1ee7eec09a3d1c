#pragma once

#include <windows.h>

/// Numbers of the resources that the plug-in's library carries (resources/*.rc).
namespace resource
{

/// Texts.
namespace text
{
inline constexpr int share = 103;
inline constexpr int recipientsPrompt = 104;
inline constexpr int messagePrompt = 105;
inline constexpr int login = 106;
inline constexpr int logout = 107;
inline constexpr int deleteComment = 108;
inline constexpr int commentAdded = 109;
inline constexpr int commentEmpty = 110;
inline constexpr int noConnection = 111;
inline constexpr int panelTitle = 112;
inline constexpr int tools = 113; ///< fetched, applied to nothing
inline constexpr int savedSuffix = 118;
inline constexpr int pushToCloud = 119;
inline constexpr int loggedInAs = 120;
inline constexpr int pleaseLogin = 121;
inline constexpr int accountOffer = 122;
inline constexpr int loginSucceeded = 130;
inline constexpr int loginFailed = 131;
inline constexpr int sharedSuffix = 132;
inline constexpr int shareFailed = 133;
inline constexpr int stlFilter = 210;
inline constexpr int threeDsFilter = 211;
inline constexpr int objFilter = 212;
inline constexpr int pdfFilter = 213;
inline constexpr int partReportFilter = 214;
inline constexpr int assemblyReportFilter = 215;
inline constexpr int addCommentGroup = 216;
inline constexpr int feeds = 217;
inline constexpr int toolsGroup = 218;
inline constexpr int loginTip = 2007;
inline constexpr int pushTip = 2008;
inline constexpr int shareTip = 2009;
} // namespace text

/// Controls of the dialogs.
namespace control
{
inline constexpr UINT loginButton = 1001;
inline constexpr UINT email = 1017;
inline constexpr UINT password = 1018;
inline constexpr UINT accountButton = 1022;
inline constexpr UINT accountState = 1029;
inline constexpr UINT recipients = 1034;
inline constexpr UINT message = 1035;
inline constexpr UINT recipientsError = 1036;
inline constexpr UINT accountOffer = 1037;  ///< in the login dialog
inline constexpr UINT deleteComment = 1037; ///< in a feed block
inline constexpr UINT thumbnail = 2001;
inline constexpr UINT commentText = 2002;
inline constexpr UINT publishingDate = 2004;
inline constexpr UINT newComment = 2005;
inline constexpr UINT submitComment = 2006;
inline constexpr UINT loginPrompt = 270;
inline constexpr UINT push = 271;
inline constexpr UINT share = 272;
} // namespace control

/// Pictures.
namespace image
{
inline constexpr UINT push = 275;
inline constexpr UINT share = 276;
inline constexpr UINT deleteComment = 278;
inline constexpr UINT dialogIcon = 1038;
} // namespace image

} // namespace resource
