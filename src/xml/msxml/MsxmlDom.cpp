// The DOM seam over MSXML through COM ("Microsoft.XMLDOM"), for the Windows build.
// Strings cross into the DOM through the thread's ANSI code page and back the same way.

#include <windows.h>
#include <msxml2.h>

#include <string>

#include "xml/Dom.h"
#include "xml/XmlError.h"
#include "com/ComPtr.h"
#include "com/WideText.h"
#include "xml/msxml/MsxmlGuids.h"
#include "xml/msxml/XmlMsxml.h"

namespace orv::dom {

struct NodeImpl {
  ComPtr<IXMLDOMNode> node;
};

namespace {

using msxml::kIID_IXMLDOMDocument2;
using msxml::kIID_IXMLDOMElement;
using msxml::kIID_IXMLDOMNode;

void Check(HRESULT status, const char* context) { XmlCheck(static_cast<Status>(status), context); }

Node Wrap(ComPtr<IXMLDOMNode> node) {
  if (!node) return nullptr;
  auto impl = std::make_shared<NodeImpl>();
  impl->node = std::move(node);
  return impl;
}

ComPtr<IXMLDOMNode> FirstChildOf(IXMLDOMNode* node) {
  ComPtr<IXMLDOMNode> child;
  Check(node->get_firstChild(child.put()), "IXMLDOMNode::get_firstChild");
  return child;
}

ComPtr<IXMLDOMNode> NextSiblingOf(IXMLDOMNode* node) {
  ComPtr<IXMLDOMNode> sibling;
  Check(node->get_nextSibling(sibling.put()), "IXMLDOMNode::get_nextSibling");
  return sibling;
}

// The document that makes new nodes for `parent`: its owner, or the parent itself when it is
// the document (whose ownerDocument is null).
ComPtr<IXMLDOMDocument2> FactoryOf(const IXMLDOMNode& parentNode) {
  auto* parent = const_cast<IXMLDOMNode*>(&parentNode);
  ComPtr<IXMLDOMDocument> owner;
  Check(parent->get_ownerDocument(owner.put()), "IXMLDOMNode::get_ownerDocument");
  ComPtr<IXMLDOMDocument2> document;
  const HRESULT status = owner
                             ? owner.As(kIID_IXMLDOMDocument2, document)
                             : parent->QueryInterface(kIID_IXMLDOMDocument2, reinterpret_cast<void**>(document.put()));
  if (status != E_NOINTERFACE) Check(status, "QueryInterface IXMLDOMDocument2");
  if (!document) throw XmlComError(kStatusPointer, "no owner document");
  return document;
}

DOMNodeType TypeOf(IXMLDOMNode* node) {
  DOMNodeType type = NODE_INVALID;
  Check(node->get_nodeType(&type), "IXMLDOMNode::get_nodeType");
  return type;
}

// appendChild, returning the appended node. A document holds one element and no text, as MSXML
// on Windows insists; msxml3 under Wine would take a second root and write markup nobody loads.
Node Append(IXMLDOMNode* parent, IXMLDOMNode* child) {
  if (TypeOf(parent) == NODE_DOCUMENT) {
    const DOMNodeType type = TypeOf(child);
    if (type == NODE_TEXT || type == NODE_CDATA_SECTION)
      throw XmlComError(kStatusFail, "appendChild: no text at the top of a document");
    if (type == NODE_ELEMENT) {
      for (ComPtr<IXMLDOMNode> top = FirstChildOf(parent); top; top = NextSiblingOf(top.get()))
        if (TypeOf(top.get()) == NODE_ELEMENT)
          throw XmlComError(kStatusFail, "appendChild: a document has one root element");
    }
  }
  ComPtr<IXMLDOMNode> appended;
  Check(parent->appendChild(child, appended.put()), "IXMLDOMNode::appendChild");
  if (!appended) throw XmlComError(kStatusPointer, "IXMLDOMNode::appendChild");
  return Wrap(std::move(appended));
}

ComPtr<IXMLDOMDocument2> DocumentOf(const NodeImpl& impl) {
  ComPtr<IXMLDOMDocument2> document;
  Check(impl.node.As(kIID_IXMLDOMDocument2, document), "QueryInterface IXMLDOMDocument2");
  return document;
}

HRESULT CreateOnce(ComPtr<IXMLDOMDocument2>& document) {
  CLSID clsid{};
  HRESULT status = CLSIDFromProgID(L"Microsoft.XMLDOM", &clsid);
  if (FAILED(status)) return status;
  return CoCreateInstance(clsid, nullptr, CLSCTX_ALL, kIID_IXMLDOMDocument2, reinterpret_cast<void**>(document.put()));
}

}  // namespace

std::string NodeName(const NodeImpl& impl) {
  Bstr name;
  Check(impl.node->get_nodeName(name.put()), "IXMLDOMNode::get_nodeName");
  return NarrowFromBstr(name.get());
}

std::string NodeValue(const NodeImpl& impl) {
  Variant value;
  Check(impl.node->get_nodeValue(value.put()), "IXMLDOMNode::get_nodeValue");
  if (value.get().vt != VT_BSTR) return {};  // VT_NULL for elements and documents
  return NarrowFromBstr(value.get().bstrVal);
}

bool IsDocument(const NodeImpl& impl) { return TypeOf(impl.node.get()) == NODE_DOCUMENT; }

Node FirstChild(const NodeImpl& impl) { return Wrap(FirstChildOf(impl.node.get())); }

Node NextSibling(const NodeImpl& impl) { return Wrap(NextSiblingOf(impl.node.get())); }

Node ParentNode(const NodeImpl& impl) {
  ComPtr<IXMLDOMNode> parent;
  Check(impl.node->get_parentNode(parent.put()), "IXMLDOMNode::get_parentNode");
  return Wrap(std::move(parent));
}

Node NamedAttribute(const NodeImpl& impl, const char* name) {
  ComPtr<IXMLDOMNamedNodeMap> attributes;
  Check(impl.node->get_attributes(attributes.put()), "IXMLDOMNode::get_attributes");
  if (!attributes) return nullptr;  // no element
  ComPtr<IXMLDOMNode> attribute;
  Check(attributes->getNamedItem(MakeBstr(name).get(), attribute.put()), "IXMLDOMNamedNodeMap::getNamedItem");
  return Wrap(std::move(attribute));
}

void SetAttribute(const NodeImpl& impl, const char* name, std::string_view value) {
  ComPtr<IXMLDOMElement> element;
  const HRESULT status = impl.node.As(kIID_IXMLDOMElement, element);
  if (status != E_NOINTERFACE) Check(status, "QueryInterface IXMLDOMElement");
  if (!element) throw XmlComError(kStatusPointer, "setAttribute: not an element");
  Variant text;
  text.SetBstr(MakeBstr(value));
  Check(element->setAttribute(MakeBstr(name).get(), text.get()), "IXMLDOMElement::setAttribute");
}

Node AppendElement(const NodeImpl& parent, const char* name) {
  ComPtr<IXMLDOMDocument2> document = FactoryOf(*parent.node.get());
  ComPtr<IXMLDOMElement> element;
  Check(document->createElement(MakeBstr(name).get(), element.put()), "IXMLDOMDocument::createElement");
  if (!element) throw XmlComError(kStatusPointer, "IXMLDOMDocument::createElement");
  Append(parent.node.get(), element.get());
  ComPtr<IXMLDOMNode> node;
  Check(element.As(kIID_IXMLDOMNode, node), "QueryInterface IXMLDOMNode");
  return Wrap(std::move(node));
}

Node AppendText(const NodeImpl& parent, std::string_view text) {
  ComPtr<IXMLDOMDocument2> document = FactoryOf(*parent.node.get());
  ComPtr<IXMLDOMText> node;
  Check(document->createTextNode(MakeBstr(text).get(), node.put()), "IXMLDOMDocument::createTextNode");
  if (!node) throw XmlComError(kStatusPointer, "IXMLDOMDocument::createTextNode");
  return Append(parent.node.get(), node.get());
}

Node AppendClone(const NodeImpl& destination, const NodeImpl& source, bool deep) {
  ComPtr<IXMLDOMNode> clone;
  Check(source.node->cloneNode(deep ? VARIANT_TRUE : VARIANT_FALSE, clone.put()), "IXMLDOMNode::cloneNode");
  if (!clone) throw XmlComError(kStatusPointer, "IXMLDOMNode::cloneNode");
  return Append(destination.node.get(), clone.get());
}

std::string NodeXml(const NodeImpl& impl) {
  Bstr xml;
  Check(impl.node->get_xml(xml.put()), "IXMLDOMNode::get_xml");
  return NarrowFromBstr(xml.get());
}

Node CreateDocument() {
  ComPtr<IXMLDOMDocument2> document;
  HRESULT status = CreateOnce(document);
  if (status == CO_E_NOTINITIALIZED) {
    // The thread keeps COM from here on: the documents we hand out need it.
    static thread_local bool initialised = false;
    if (!initialised) {
      initialised = true;
      CoInitialize(nullptr);
    }
    status = CreateOnce(document);
  }
  if (FAILED(status) || !document) return nullptr;
  Check(document->put_async(VARIANT_FALSE), "IXMLDOMDocument::put_async");
  Check(document->put_validateOnParse(VARIANT_FALSE), "IXMLDOMDocument::put_validateOnParse");
  Variant language;
  language.SetBstr(MakeBstr("XPath"));
  Bstr property = MakeBstr("SelectionLanguage");
  Check(document->setProperty(property.get(), language.get()), "IXMLDOMDocument2::setProperty");
  ComPtr<IXMLDOMNode> node;
  Check(document.As(kIID_IXMLDOMNode, node), "QueryInterface IXMLDOMNode");
  return Wrap(std::move(node));
}

bool LoadXml(const NodeImpl& document, std::string_view text) {
  VARIANT_BOOL loaded = VARIANT_FALSE;
  Check(DocumentOf(document)->loadXML(MakeBstr(text).get(), &loaded), "IXMLDOMDocument::loadXML");
  return loaded == VARIANT_TRUE;
}

void RemoveChild(const NodeImpl& parent, const NodeImpl& child) {
  ComPtr<IXMLDOMNode> removed;
  Check(parent.node->removeChild(child.node.get(), removed.put()), "IXMLDOMNode::removeChild");
}

void ClearDocument(const NodeImpl& document) {
  for (ComPtr<IXMLDOMNode> child; SUCCEEDED(document.node->get_firstChild(child.put())) && child;) {
    ComPtr<IXMLDOMNode> removed;
    Check(document.node->removeChild(child.get(), removed.put()), "IXMLDOMNode::removeChild");
  }
}

}  // namespace orv::dom

XmlNode XmlWrapDomNode(IXMLDOMNode* node) { return XmlNode(orv::dom::Wrap(orv::ComPtr<IXMLDOMNode>::Share(node))); }

XmlNode XmlWrapUnknown(IUnknown* object) {
  if (object == nullptr) return XmlNode();
  orv::ComPtr<IXMLDOMNode> node;
  const HRESULT status = object->QueryInterface(orv::msxml::kIID_IXMLDOMNode, reinterpret_cast<void**>(node.put()));
  if (status != E_NOINTERFACE) XmlCheck(static_cast<orv::Status>(status), "QueryInterface IXMLDOMNode");
  return XmlNode(orv::dom::Wrap(std::move(node)));
}

IXMLDOMNode* XmlDomNodeOf(const XmlNode& node) { return node ? node.impl()->node.get() : nullptr; }
