#pragma once
// A dialog template as the fakes see it. The tables are generated at build time from the .rc files
// (cmake/RcLayouts.cmake), so a headless dialog has exactly the controls its template declares.

#include <span>

#include "dlgkit/fake/ControlsFake.h"

namespace orv {

// The styles of an edit control that a user can feel.
struct TemplateEditStyle {
  bool readOnly = false;   // ES_READONLY
  bool number = false;     // ES_NUMBER: digits only
  bool password = false;   // ES_PASSWORD
  bool multiline = false;  // ES_MULTILINE
};

// One control statement of a template.
struct TemplateControl {
  const char* keyword;  // the statement: "AUTOCHECKBOX", "EDITTEXT", "CONTROL", ...
  const char* text;
  int id;  // -1: none
  FakeControlKind kind;
  FakeRect rect;  // dialog units
  bool visible;
  bool enabled;
  bool group;       // WS_GROUP: starts a group (radio buttons of one group exclude each other)
  bool threeState;  // AUTO3STATE, STATE3, BS_(AUTO)3STATE
  bool automatic;   // a button that checks itself when clicked
  TemplateEditStyle edit;
  bool multiSelect;  // a list box of several selections: LBS_MULTIPLESEL, LBS_EXTENDEDSEL
  const char* line;  // the statement as written, for messages
};

struct TemplateDialog {
  int id;
  const char* caption;
  int width, height;  // dialog units
  std::span<const TemplateControl> controls;
};

// The template of `dialogId` in `dialogs`, or null.
const TemplateDialog* FindTemplate(std::span<const TemplateDialog> dialogs, int dialogId);

// Adds every control of `dialog` that has an id, as the platform would create it: kind, text,
// rectangle, visible and enabled, radio groups, three-state boxes, edit styles.
void AddTemplateControls(const TemplateDialog& dialog, FakeControls& controls);

}  // namespace orv
