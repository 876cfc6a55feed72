// Any text as the host's XML holding a font: CFontInfo reads it, makes its font through a
// counting cache, converts to a LOGFONT and writes its element. The record's promises are
// checked; refusals are XmlComError; nothing may crash or leak a font.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "dlgkit/FontInfo.h"
#include "dlgkit/fake/FakeFontOps.h"
#include "xml/Xml.h"

namespace {

void Check(bool condition) {
  if (!condition) __builtin_trap();
}

void Exercise(XmlNode document, orv::FakeFontOps& ops) {
  orv::CFontInfo info;
  const bool found = info.Read(document);
  Check(found == static_cast<bool>(XmlFindNode(document, "CFontInfo", true)));
  if (!found) {
    Check(ops.Created().empty());
    return;
  }
  Check(!info.FaceName.empty());
  Check(info.PtSize != 0);
  Check(info.PitchAndFamily <= 1);

  orv::LogFont font;
  info.ToLogFont(font);
  Check(std::find(font.lfFaceName, font.lfFaceName + orv::kLfFaceSize, '\0') != font.lfFaceName + orv::kLfFaceSize);
  Check(font.lfWeight >= 0 && font.lfWeight <= 1000);
  Check(font.lfItalic <= 1 && font.lfUnderline <= 1 && font.lfPitchAndFamily <= 1);
  // A font exactly when the face has a first character and the pixel height isn't 0.
  Check(static_cast<bool>(info.GetFont()) == (font.lfFaceName[0] != '\0' && font.lfHeight != 0));

  // What Write gives, Read takes back unchanged.
  XmlNode target = XmlCreateDocument();
  if (!XmlLoadString(target, "<Root/>")) return;
  XmlNode element = info.Write(XmlFindNode(target, "Root", true));
  Check(static_cast<bool>(element));
  orv::CFontInfo again;
  Check(again.Read(target));
  Check(again.FaceName == info.FaceName && again.PtSize == info.PtSize && again.Width == info.Width &&
        again.Weight == info.Weight && again.Italic == info.Italic && again.Underline == info.Underline &&
        again.PitchAndFamily == info.PitchAndFamily);
  // Equal records share their font.
  Check(again.GetFontHandle() == info.GetFontHandle());
  orv::CFontInfo fromLog;
  fromLog.FromLogFont(font);
  Check(fromLog.PtSize <= 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  orv::FakeFontOps ops;
  {
    orv::FontCache cache(ops);
    orv::ScopedFontCache scope(cache);
    try {
      Exercise(document, ops);
    } catch (const XmlComError&) {
      // A name or text the DOM refused to write: a documented failure.
    }
  }
  // Every font made went with its last user.
  Check(ops.LiveCount() == 0 && ops.Errors().empty());
  return 0;
}
