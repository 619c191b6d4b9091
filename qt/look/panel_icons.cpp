// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/panel_icons.h"

#include "qt/look/icons.h"

namespace tarvo {
namespace {

// Strokes on a field of 16 by 16, of which "accent" is drawn in blue.
struct Picture {
  QStyle::StandardPixmap known;
  const char* plain;
  const char* accent = "";
};

constexpr char folder[] = "M2 12.5v-8a1 1 0 0 1 1-1h3l1.5 2H13a1 1 0 0 1 1 1v6a1 1 0 0 1-1 1H3a1 1 0 0 1-1-1z";
constexpr char file[] = "M4 2.5h5l3 3v7.5a.5.5 0 0 1-.5.5H4a.5.5 0 0 1-.5-.5V3a.5.5 0 0 1 .5-.5zM9 2.5v3h3";
constexpr char computer[] = "M2.5 3.5h11v7h-11zM5.5 13.5h5M8 10.5v3";

constexpr Picture pictures[] = {
    {QStyle::SP_ArrowBack, "M13 8H3.5M7.5 4l-4 4 4 4"},
    {QStyle::SP_ArrowForward, "M3 8h9.5M8.5 4l4 4-4 4"},
    {QStyle::SP_FileDialogToParent, "M8 13V3.5M4 7.5l4-4 4 4"},
    {QStyle::SP_FileDialogNewFolder, "M8.5 13.5H3a1 1 0 0 1-1-1v-8a1 1 0 0 1 1-1h3l1.5 2H13a1 1 0 0 1 1 1V9",
     "M12.5 11v5M10 13.5h5"},
    {QStyle::SP_FileDialogListView, "M2.5 3h4v4h-4zM9.5 3h4v4h-4zM2.5 10h4v4h-4zM9.5 10h4v4h-4z"},
    {QStyle::SP_FileDialogDetailedView, "M5.5 4h8M5.5 8h8M5.5 12h8", "M2.5 4h.01M2.5 8h.01M2.5 12h.01"},
    {QStyle::SP_DirIcon, folder},
    {QStyle::SP_DirLinkIcon, folder},
    {QStyle::SP_DirHomeIcon, "M2.5 8L8 3l5.5 5M4 7v6.5h8V7"},
    {QStyle::SP_FileIcon, file},
    {QStyle::SP_FileLinkIcon, file},
    {QStyle::SP_ComputerIcon, computer},
    {QStyle::SP_DesktopIcon, computer},
    {QStyle::SP_DriveHDIcon, "M2.5 9.5h11v3.5h-11zM2.5 9.5l2-6h7l2 6", "M11 11.25h.01"},
    {QStyle::SP_LineEditClearButton, "M4.5 4.5l7 7M11.5 4.5l-7 7"},
};

constexpr char drawing[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16" width="16" height="16"><g fill="none" )"
    R"(stroke-width="1.25" stroke-linecap="round" stroke-linejoin="round"><path stroke="#3A4250" d="%1"/>)"
    R"(<path stroke="#2F6FED" stroke-width="1.5" d="%2"/></g></svg>)";

}  // namespace

QIcon panelIcon(QStyle::StandardPixmap picture, Scheme scheme) {
  for (const auto& [known, plain, accent] : pictures)
    if (known == picture) return iconOf(QString::fromLatin1(drawing).arg(plain, accent).toLatin1(), scheme);
  return {};
}

}  // namespace tarvo
