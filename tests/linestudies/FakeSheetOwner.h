#pragma once
// The sheet owner of the line study tests, and the text of the Advanced page's apply.

#include <string>

#include "dlgkit/fake/FakeSheetOwner.h"

namespace lstest {

using orv::Compact;
using orv::Compacted;
using orv::FakeSheetOwner;
using orv::StatusEvent;

inline std::string AdvancedApplyText(bool alwaysVisible, bool screenAnchor) {
  return std::string("<PropertySheet Name=\"LSPs\"><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\">") +
         "<AlwaysVisible>" + (alwaysVisible ? "TRUE" : "FALSE") + "</AlwaysVisible><LSTxt_ScrnAnch>" +
         (screenAnchor ? "TRUE" : "FALSE") + "</LSTxt_ScrnAnch></PropertyPage></PropertyPageList></PropertySheet>";
}

}  // namespace lstest
