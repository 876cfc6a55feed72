#pragma once
// The XML access layer: every page reads and writes the host's XML through these functions.
//
// Absent is no error: readers leave the caller's variable as it was, so set defaults first and
// read over them. A failing DOM call raises XmlComError with its status; a needed handle that is
// null raises orv::kStatusPointer; a null name raises orv::kStatusFail. Only XmlLoadString
// catches, and answers false.
//
// Text is narrow: the thread's ANSI code page on Windows, UTF-8 natively.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "xml/XmlError.h"

namespace orv::dom {
struct NodeImpl;  // one node of the DOM backend (see xml/Dom.h)
}

// A shared, reference-counted reference to a DOM node; null allowed, cheap to copy.
// A handle keeps its node and the node's document alive: it never dangles.
class XmlNode {
 public:
  XmlNode() noexcept = default;
  XmlNode(std::nullptr_t) noexcept {}
  explicit XmlNode(std::shared_ptr<orv::dom::NodeImpl> impl) noexcept : impl_(std::move(impl)) {}

  explicit operator bool() const noexcept { return static_cast<bool>(impl_); }

  // For the DOM backends and the interop helpers only.
  const std::shared_ptr<orv::dom::NodeImpl>& impl() const noexcept { return impl_; }

 private:
  std::shared_ptr<orv::dom::NodeImpl> impl_;
};

// The text form of a 32-bit value. Any other number (1, 5, ...) is written as decimal.
enum class XmlValueKind : std::int32_t {
  Decimal = 0,  // "%d" ("%u" for the unsigned twin)
  Hex = 2,      // "0x%08X"
  Color = 3,    // "RGB(r,g,b)", red in the low byte
  Bool = 4,     // "TRUE" / "FALSE"
};

// Finding. XmlFindNode walks depth first in document order from `start`, along the siblings of
// `start` as well; names compare byte for byte with the full nodeName.
XmlNode XmlFindNode(XmlNode start, const char* name, bool recursive);
XmlNode XmlFindChild(XmlNode parent, const char* name);
XmlNode XmlFirstTextChild(XmlNode node);
bool XmlIsTextNode(XmlNode node);
// Walking a list of children in order: null for a null node or when there is none.
XmlNode XmlFirstChild(XmlNode node);
XmlNode XmlNextSibling(XmlNode node);
// The parent (parentNode): the element or document holding `node`; null for a null node, a
// document, or an attribute.
XmlNode XmlGetParent(XmlNode node);

// Reading: the result is the node read (attribute, child or the node itself), or null.
XmlNode XmlGetAttr(XmlNode node, const char* name, std::string& value);
XmlNode XmlGetAttrValue(XmlNode node, const char* name, std::int32_t& value);
XmlNode XmlGetAttrValue(XmlNode node, const char* name, std::uint32_t& value);
XmlNode XmlGetNodeText(XmlNode node, std::string& value);
XmlNode XmlGetChildText(XmlNode parent, const char* name, std::string& value);
XmlNode XmlGetChildValue(XmlNode parent, const char* name, std::int32_t& value);
XmlNode XmlGetChildValue(XmlNode parent, const char* name, std::uint32_t& value);
// The node's text (as XmlGetNodeText) read by XmlParseValue; the integer is assigned only when
// that succeeds. Returns the node.
XmlNode XmlGetNodeValue(XmlNode node, std::int32_t& value);
// The attribute's text read by atof (so text that is no number gives 0.0); assigned only when the
// attribute exists.
XmlNode XmlGetAttrDouble(XmlNode node, const char* name, double& value);
// The same of a child element's text.
XmlNode XmlGetChildDouble(XmlNode parent, const char* name, double& value);
// The markup of the node and everything below it; a null node raises orv::kStatusPointer.
std::string XmlGetXml(XmlNode node);

// Writing. XmlSetAttr raises orv::kStatusPointer for a null node or one that is no element.
// Names must be XML names: an empty or malformed name raises orv::kStatusFail.
orv::Status XmlSetAttr(XmlNode node, const char* name, std::string_view value);
// Always returns a null handle.
XmlNode XmlSetAttrValue(XmlNode node, const char* name, std::int32_t value, XmlValueKind kind = XmlValueKind::Decimal);
XmlNode XmlSetAttrValue(XmlNode node, const char* name, std::uint32_t value, XmlValueKind kind = XmlValueKind::Decimal);
// "%f" of the value, then XmlSetAttr. Always returns a null handle.
XmlNode XmlSetAttrDouble(XmlNode node, const char* name, double value);
// The writers below return null for a null parent; a new element is always appended.
XmlNode XmlAddChild(XmlNode parent, const char* name);
XmlNode XmlAddTextChild(XmlNode parent, const char* name, std::string_view text);
XmlNode XmlAddValueChild(XmlNode parent, const char* name, std::int32_t value,
                         XmlValueKind kind = XmlValueKind::Decimal);
XmlNode XmlAddValueChild(XmlNode parent, const char* name, std::uint32_t value,
                         XmlValueKind kind = XmlValueKind::Decimal);
// A child element holding "%f" of the value.
XmlNode XmlAddDoubleChild(XmlNode parent, const char* name, double value);
// Appends a copy of `node` (with its descendants when `deep`) to `destination`, which may be in
// another document; returns the appended copy, null when either argument is null.
XmlNode XmlAppendClone(XmlNode destination, XmlNode node, bool deep);

// Removes `node` (with everything below it) from its parent and returns it; null when it has no
// parent. A null handle raises orv::kStatusPointer. Handles into the removed part stay valid: it
// stands on its own, without parent and siblings, as long as they use it.
XmlNode XmlRemoveNode(XmlNode node);

// Document. XmlCreateDocument gives null when the platform's parser cannot be created.
XmlNode XmlCreateDocument();
// True when the text parsed into `document`. False for a null handle or one that is no document,
// an empty text, a text refused by the guard (a DOCTYPE or other markup declaration, elements
// nested deeper than 256, characters or references XML does not allow) or any parse or DOM
// failure. After false the document is empty; handles into its former content stay valid.
bool XmlLoadString(XmlNode document, std::string_view text);

// Text forms of a 32-bit value. XmlParseValue reads every kind; see Xml.cpp for the exact rules.
std::string XmlFormatValue(std::int32_t value, XmlValueKind kind);
std::string XmlFormatValue(std::uint32_t value, XmlValueKind kind);
bool XmlParseValue(std::string_view text, std::int32_t& out);
bool XmlParseValue(std::string_view text, std::uint32_t& out);
