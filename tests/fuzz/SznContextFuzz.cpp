// Any document as the seasonal wizard's working document: its Context read, the defaults, the
// labels, the contract list and a new Context written. Never a crash; the new Context reads back
// to the state it was written from.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "seasonal/WizardSeasonState.h"
#include "xml/StrFormat.h"

namespace {

using orv::seasonal::WizardSeasonState;

// What a Context holds of the state; multipliers as written ("%f").
std::string ContextFields(const WizardSeasonState& s) {
  std::string out = orv::StrFormat("%d|%d|%.17g|%.17g|%s|%s|%s|%d|%s|%d|%f|%f|", s.FormSel, s.YearsBack, s.Start.value,
                                   s.End.value, s.Symbol1.c_str(), s.Symbol2.c_str(), s.Root1.c_str(), s.Month1,
                                   s.Root2.c_str(), s.Month2, s.Multiplier1, s.Multiplier2);
  for (const auto* list : {&s.SelYearIndexes, &s.Years1, &s.Years2}) {
    for (int v : *list) out += orv::StrFormat("%d,", v);
    out += '|';
  }
  return out;
}

// Text that is only XML white space does not survive a load (neither MSXML nor pugixml keep it).
bool IsBlank(const std::string& text) {
  return !text.empty() && text.find_first_not_of(" \t\r\n") == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, text)) return 0;

  WizardSeasonState state;
  orv::seasonal::ReadContext(state, document);
  orv::seasonal::ApplyDefaults(state);
  orv::seasonal::BuildContractLabels(state);
  orv::seasonal::WriteContractList(state, document);
  // Held before the write: a root named Context is itself the old Context, removed by the write,
  // and the new one goes under it all the same.
  const XmlNode root = XmlFirstChild(document);
  try {
    orv::seasonal::WriteContext(state, document);
  } catch (const XmlComError&) {
    return 0;  // a first child that holds no elements (a comment, an instruction)
  }

  // The new Context is the root's last child of that name.
  XmlNode written;
  for (XmlNode child = XmlFirstChild(root); child; child = XmlNextSibling(child)) {
    if (!XmlIsTextNode(child) && XmlGetXml(child).rfind("<Context>", 0) == 0) written = child;
  }
  if (!written) std::abort();
  if (IsBlank(state.Symbol1) || IsBlank(state.Symbol2)) return 0;

  XmlNode again = XmlCreateDocument();
  if (!XmlLoadString(again, "<PropertySheet>" + XmlGetXml(written) + "</PropertySheet>")) std::abort();
  WizardSeasonState read;
  orv::seasonal::ReadContext(read, again);
  if (ContextFields(read) != ContextFields(state)) std::abort();
  return 0;
}
