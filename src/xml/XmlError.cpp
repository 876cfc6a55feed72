#include "xml/XmlError.h"

#include <cstdio>

XmlComError::XmlComError(orv::Status status, std::string context)
    : status_(status), context_(std::move(context)) {
  char text[32];
  std::snprintf(text, sizeof text, "status 0x%08X", static_cast<unsigned>(status));
  message_ = context_.empty() ? text : std::string(text) + " in " + context_;
}
