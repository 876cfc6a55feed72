#include "dlgkit/fake/TemplateLayout.h"

namespace orv {

const TemplateDialog* FindTemplate(std::span<const TemplateDialog> dialogs, int dialogId) {
  for (const TemplateDialog& dialog : dialogs) {
    if (dialog.id == dialogId) return &dialog;
  }
  return nullptr;
}

void AddTemplateControls(const TemplateDialog& dialog, FakeControls& controls) {
  int group = 0;
  for (const TemplateControl& t : dialog.controls) {
    // A group runs from a WS_GROUP control to the next one; its radio buttons exclude each other.
    if (t.group || group == 0) ++group;
    if (t.id == -1) continue;
    if (t.kind == FakeControlKind::RadioButton) {
      controls.AddRadio(t.id, group, t.text);
    } else {
      controls.Add(t.id, t.kind, t.text);
    }
    FakeControl& c = controls.Control(t.id);
    c.rect = t.rect;
    c.visible = t.visible;
    c.enabled = t.enabled;
    c.threeState = t.threeState;
    c.automatic = t.automatic;
    c.readOnly = t.edit.readOnly;
    c.digitsOnly = t.edit.number;
    c.multiSelect = t.multiSelect;
  }
}

}  // namespace orv
