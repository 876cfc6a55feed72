#include "dlgkit/Prompts.h"

#include "dlgkit/HostServices.h"
#include "xml/StrFormat.h"
#include "xml/Xml.h"

namespace orv {

std::string GetPrompt(std::string_view tag) {
  std::string result(tag.substr(0, tag.find('\0')));
  // An XPath literal can't hold its own quote character: such a tag is its own text.
  const bool hasDouble = result.find('"') != std::string::npos;
  const bool hasSingle = result.find('\'') != std::string::npos;
  if (hasDouble && hasSingle) return result;
  auto settings = CurrentHostServices().CreateSettingsService();
  if (!settings) return result;
  const std::string xpath = hasDouble ? StrFormat("//Language/Prompts/Prompt[@Tag='%s']", result.c_str())
                                      : StrFormat("//Language/Prompts/Prompt[@Tag=\"%s\"]", result.c_str());
  std::string value;
  std::int32_t answer = 0;
  settings->GetDocumentValue("LANGUAGE", xpath, "", kDocumentValueText, value, answer);
  if (!value.empty()) result = std::move(value);
  return result;
}

void LoadColorTable(std::vector<ColorTableItem>& list) {
  auto settings = CurrentHostServices().CreateSettingsService();
  if (!settings) throw XmlComError(kStatusPointer, "ISettingsService");
  XmlNode table;
  std::int32_t answer = 0;
  settings->GetDocumentNode("PREFS", "//General/ColorTable", table, answer);
  // The children named exactly "Color", in order; text, comments and other elements are passed.
  for (XmlNode child = XmlFindChild(table, "Color"); child;
       child = XmlFindNode(XmlNextSibling(child), "Color", false)) {
    ColorTableItem item{{}, kNoColor};
    XmlGetAttr(child, "ThemeTag", item.tag);
    std::string text;
    XmlGetNodeText(child, text);
    std::uint32_t color = 0;
    if (XmlParseValue(text, color)) item.color = color;
    list.push_back(std::move(item));
  }
}

}  // namespace orv
