// The little language in which orvhost drives an open sheet as a user would: one command per line
// or between semicolons, e.g. "click 4646; apply; cancel". Parsed completely before the sheet
// opens, so a typo never leaves a half-driven dialog behind.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orv::host_app {

enum class ScriptOp {
  Text,    // text <id> <value>: the control's text, then EN_CHANGE to its parent
  Click,   // click <id>: BM_CLICK
  Select,  // select <id> <index>: CB_SETCURSEL or LB_SETCURSEL, then the SELCHANGE command
  Toggle,  // toggle <id> <index>: a mouse click on a row of a list box of several selections
  Expect,  // expect <id> <text>: the control shows this text, else the script fails
  Tab,     // tab <index>: PSM_SETCURSEL
  Spin,    // spin <id> <delta>: the up-down's UDN_DELTAPOS to its parent, as a click on an arrow
  Apply,   // apply, ok, cancel, next, back, finish: PSM_PRESSBUTTON
  Ok,
  Cancel,
  Next,
  Back,
  Finish,
  Color,       // color <id> <cell>: the colour button's drop-down opened, a cell of its grid clicked
  Wait,        // wait <ms>
  Screenshot,  // screenshot <file.png>: the sheet as painted
};

struct ScriptStep {
  ScriptOp op = ScriptOp::Wait;
  int id = 0;            // control id (text, click, select, toggle, spin, expect)
  int index = 0;         // item or tab index (select, toggle, tab), steps (spin), grid cell (color)
  int milliseconds = 0;  // wait
  std::string text;      // value (text, expect) or file name (screenshot), UTF-8
  std::string source;    // the command as written, for messages
};

struct ParsedScript {
  std::vector<ScriptStep> steps;
  std::string error;  // empty when the whole script is good
};

// Commands are separated by new lines and by semicolons outside double quotes. A value or file
// name may be quoted ("a b; c", with \" and \\ inside); unquoted, it is the rest of the command
// with surrounding blanks removed. A command starting with # is a comment to the end of its line.
ParsedScript ParseScript(std::string_view text);

// The cells of the colour grid a script may click: the palette's. An empty custom cell would open
// the platform's colour editor, which no script answers.
inline constexpr int kMaxScriptColorCell = 62;

// The longest wait a script may ask for: a script that sleeps longer is surely wrong.
inline constexpr int kMaxWaitMilliseconds = 60000;

}  // namespace orv::host_app
