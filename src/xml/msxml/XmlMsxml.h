#pragma once
// Windows only: node handles to and from the live MSXML nodes that host and component hand
// each other.

#include <windows.h>
#include <msxml2.h>

#include "xml/Xml.h"

// A handle sharing `node` (one added reference); null gives a null handle.
XmlNode XmlWrapDomNode(IXMLDOMNode* node);
// Queries `object` for IXMLDOMNode: a null object or one without that interface gives a null
// handle; any other failure of the query raises XmlComError with its status.
XmlNode XmlWrapUnknown(IUnknown* object);
// The node behind a handle, borrowed: valid while the handle lives; AddRef it to keep it.
// Null for a null handle.
IXMLDOMNode* XmlDomNodeOf(const XmlNode& node);
