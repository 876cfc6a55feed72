#include "xml/XmlError.h"

#include "xml/StrFormat.h"

XmlComError::XmlComError(orv::Status status, std::string context) : status_(status), context_(std::move(context)) {
  message_ = orv::StrFormat("status 0x%08X", static_cast<unsigned>(status));
  if (!context_.empty()) message_ += " in " + context_;
}
