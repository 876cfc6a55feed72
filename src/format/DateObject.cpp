#include "format/DateObject.h"

#include "format/DateLocale.h"
#include "format/DateMask.h"
#include "xml/XmlError.h"

namespace orv {

DateObject::DateObject(double date) : date_(date), status_(Status::Invalid) {
  if (BreakDownDate(date, parts_)) status_ = Status::Valid;
}

bool DateObject::GetParts(DateParts& parts) const {
  if (status_ != Status::Valid) return false;
  parts = parts_;
  return true;
}

std::string DateObject::Format(const char* mask) const {
  if (!mask) throw XmlComError(kStatusInvalidArg, "DateObject::Format");
  if (status_ == Status::Null) return {};
  if (status_ == Status::Invalid) return InvalidDateText();
  std::string text;
  FormatDateMask(mask, parts_, kDateTextCapacity, text);
  return text;
}

std::string InvalidDateText() {
  std::string text = CurrentDateLocale().LoadInvalidDateText();
  return text.empty() ? std::string("Invalid DateTime") : text;
}

}  // namespace orv
