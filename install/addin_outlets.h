// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"

namespace tarvo {

namespace addin_columns {
inline constexpr const char *check = "Value", *name = "AppName", *version = "Version";
}  // namespace addin_columns

// The Office pane, the mail pane and the cautions that their buttons bring up. The tool's pop-up is ToolListOutlets'.
struct AddinOutlets : Outlets {
  TableView officeTableView{*this, "officeTableView"};  // all three columns
  TextField officeInfoField{*this, "officeInfoField", Control::Kind::text};
  TextField officeReasonField{*this, "officeReasonField", Control::Kind::text};
  Button officeSearchButton{*this, "officeSearchButton"}, officePowerPointButton{*this, "officePowerPointButton"};
  TableView mailTableView{*this, "mailTableView"};  // no versions
  TextField mailinfoField{*this, "mailinfoField", Control::Kind::text};
  TextField mailReasonField{*this, "mailReasonField", Control::Kind::text};
  Button mailCautionButton{*this, "mailCautionButton"};
  Button scriptEditorButton{*this, "scriptEditorButton"}, scriptUtilityButton{*this, "scriptUtilityButton"};

  Window alertWindow{*this, "alertWindow"}, alertWindowSL{*this, "alertWindowSL"},
      alertPowerPoint{*this, "alertPowerPoint"};
  TextField alertWindowText{*this, "alertWindowText", Control::Kind::text},
      alertWindowSLText{*this, "alertWindowSLText", Control::Kind::text},
      alertPowerPointText{*this, "alertPowerPointText", Control::Kind::text};
  Button alertCloseButton{*this, "alertCloseButton"}, alertSLCloseButton{*this, "alertSLCloseButton"},
      powerPointCloseButton{*this, "powerPointCloseButton"};
  AddinOutlets() : Outlets("manager") {}
};

}  // namespace tarvo
