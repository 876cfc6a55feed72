#pragma once
// ComApartment: the calling thread in a single-threaded apartment for the object's life, as a
// host of the component runs (the programs' main functions). Status() tells whether it took.

#include <objbase.h>

namespace orv {

class ComApartment {
 public:
  ComApartment() : hr_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComApartment() {
    if (SUCCEEDED(hr_)) CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
  HRESULT Status() const { return hr_; }

 private:
  HRESULT hr_;
};

}  // namespace orv
