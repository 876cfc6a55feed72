#pragma once
// Small RAII owners for COM pointers, BSTRs and VARIANTs (MinGW-w64 has no ATL).

#include <windows.h>
#include <oleauto.h>

#include <cstddef>
#include <type_traits>
#include <utility>

namespace orv {

// Owns one reference to a COM interface.
template <typename T>
class ComPtr {
 public:
  ComPtr() noexcept = default;
  ComPtr(std::nullptr_t) noexcept {}
  ComPtr(const ComPtr& other) noexcept : p_(other.p_) { AddRef(); }
  ComPtr(ComPtr&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
  // From a pointer to a derived class (an object to one of its interfaces).
  template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  ComPtr(ComPtr<U> other) noexcept : p_(other.release()) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(p_, other.p_);
    return *this;
  }
  ~ComPtr() { reset(); }

  // Takes over a reference the caller already owns (an out parameter's).
  static ComPtr Attach(T* p) noexcept {
    ComPtr result;
    result.p_ = p;
    return result;
  }
  // Adds a reference of its own.
  static ComPtr Share(T* p) noexcept {
    ComPtr result = Attach(p);
    result.AddRef();
    return result;
  }

  T* get() const noexcept { return p_; }
  T* operator->() const noexcept { return p_; }
  explicit operator bool() const noexcept { return p_ != nullptr; }
  // For out parameters: drops what is held and gives the slot.
  T** put() noexcept {
    reset();
    return &p_;
  }
  void reset() noexcept {
    if (p_ != nullptr) std::exchange(p_, nullptr)->Release();
  }
  // Gives up the reference without releasing it.
  T* release() noexcept { return std::exchange(p_, nullptr); }

  // QueryInterface into `out`; returns the status.
  template <typename U>
  HRESULT As(REFIID iid, ComPtr<U>& out) const noexcept {
    return p_->QueryInterface(iid, reinterpret_cast<void**>(out.put()));
  }

 private:
  void AddRef() noexcept {
    if (p_ != nullptr) p_->AddRef();
  }
  T* p_ = nullptr;
};

// Owns a BSTR.
class Bstr {
 public:
  Bstr() noexcept = default;
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  Bstr(Bstr&& other) noexcept : s_(std::exchange(other.s_, nullptr)) {}
  ~Bstr() { SysFreeString(s_); }
  static Bstr Attach(BSTR s) noexcept {
    Bstr result;
    result.s_ = s;
    return result;
  }
  BSTR get() const noexcept { return s_; }
  BSTR* put() noexcept {
    SysFreeString(std::exchange(s_, nullptr));
    return &s_;
  }
  UINT size() const noexcept { return SysStringLen(s_); }
  BSTR release() noexcept { return std::exchange(s_, nullptr); }

 private:
  BSTR s_ = nullptr;
};

// Owns a VARIANT.
class Variant {
 public:
  Variant() noexcept { VariantInit(&v_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&v_); }
  VARIANT& get() noexcept { return v_; }
  VARIANT* put() noexcept {
    VariantClear(&v_);
    return &v_;
  }
  // Takes over the BSTR.
  void SetBstr(Bstr&& text) noexcept {
    VariantClear(&v_);
    v_.vt = VT_BSTR;
    v_.bstrVal = text.release();
  }

 private:
  VARIANT v_;
};

}  // namespace orv
