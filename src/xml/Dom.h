#pragma once
// The DOM backend seam: the node operations the Xml* layer needs, named as the DOM names them.
// One backend is linked per platform: msxml/ (MSXML through COM) on Windows, pugi/ natively.
// Every operation raises XmlComError on a DOM failure. Absent things come back as null.

#include <memory>
#include <string>
#include <string_view>

namespace orv::dom {

struct NodeImpl;  // defined by the backend
using Node = std::shared_ptr<NodeImpl>;

std::string NodeName(const NodeImpl& node);   // nodeName: "#text", "#cdata-section", "#document", ...
std::string NodeValue(const NodeImpl& node);  // nodeValue; empty where the DOM has null (elements)
bool IsDocument(const NodeImpl& node);

Node FirstChild(const NodeImpl& node);
Node NextSibling(const NodeImpl& node);
// parentNode: null for a document, an attribute, or a node outside any tree.
Node ParentNode(const NodeImpl& node);
// attributes + getNamedItem: null for a node without attributes or without that one.
Node NamedAttribute(const NodeImpl& node, const char* name);

// setAttribute on the node as an element; a node that is no element raises kStatusPointer.
void SetAttribute(const NodeImpl& node, const char* name, std::string_view value);
// createElement on the owner document (or on `parent` when it is the document) + appendChild.
Node AppendElement(const NodeImpl& parent, const char* name);
// createTextNode + appendChild.
Node AppendText(const NodeImpl& parent, std::string_view text);
// cloneNode(deep) + appendChild to `destination`; the source may be in another document.
Node AppendClone(const NodeImpl& destination, const NodeImpl& node, bool deep);

// removeChild: `child` leaves `parent` with everything below it; handles into it stay valid and
// see it without parent or siblings. A `child` that isn't one of `parent` raises.
void RemoveChild(const NodeImpl& parent, const NodeImpl& child);

std::string NodeXml(const NodeImpl& node);  // the xml property

Node CreateDocument();  // null when the parser cannot be created
// loadXML: true when the text parsed. The text has passed the layer's guard.
bool LoadXml(const NodeImpl& document, std::string_view text);
// Removes the document's content (after a refused load); handles into it stay valid.
void ClearDocument(const NodeImpl& document);

}  // namespace orv::dom
