#pragma once
// Failures of DOM and COM calls travel as XmlComError, carrying the failing status.

#include <cstdint>
#include <exception>
#include <string>

namespace orv {

// An HRESULT-shaped status: negative is a failure.
using Status = std::int32_t;

inline constexpr Status kStatusOk = 0;
inline constexpr Status kStatusFail = static_cast<Status>(0x80004005u);            // E_FAIL
inline constexpr Status kStatusPointer = static_cast<Status>(0x80004003u);         // E_POINTER
inline constexpr Status kStatusNoInterface = static_cast<Status>(0x80004002u);     // E_NOINTERFACE
inline constexpr Status kStatusUnexpected = static_cast<Status>(0x8000FFFFu);      // E_UNEXPECTED
inline constexpr Status kStatusInvalidArg = static_cast<Status>(0x80070057u);      // E_INVALIDARG
inline constexpr Status kStatusOutOfMemory = static_cast<Status>(0x8007000Eu);     // E_OUTOFMEMORY
inline constexpr Status kStatusNotInitialized = static_cast<Status>(0x800401F0u);  // CO_E_NOTINITIALIZED

}  // namespace orv

// Raised by every failed DOM or COM call; the status becomes the HRESULT of the COM method it passes through.
class XmlComError : public std::exception {
 public:
  explicit XmlComError(orv::Status status, std::string context = {});
  orv::Status status() const noexcept { return status_; }
  // The interface and object that failed, when known (for error info); may be empty.
  const std::string& context() const noexcept { return context_; }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  orv::Status status_;
  std::string context_;
  std::string message_;
};

// Raises XmlComError when the status is a failure; returns it otherwise.
inline orv::Status XmlCheck(orv::Status status, const char* context = nullptr) {
  if (status < 0) throw XmlComError(status, context ? context : "");
  return status;
}
