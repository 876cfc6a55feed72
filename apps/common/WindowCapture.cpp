#include "WindowCapture.h"

#include <wincodec.h>

#include "com/ComPtr.h"

#include <memory>
#include <type_traits>

namespace orv::apps {
namespace {

// A window's DC and the window it belongs to, released together.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetWindowDC(window)) {}
  ~WindowDc() {
    if (dc_) ReleaseDC(window_, dc_);
  }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  HDC get() const noexcept { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};
struct MemoryDcDelete {
  void operator()(HDC dc) const { DeleteDC(dc); }
};
struct GdiObjectDelete {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
using MemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, MemoryDcDelete>;
using GdiBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, GdiObjectDelete>;

// Puts the old object back into the DC before either is destroyed.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), old_(SelectObject(dc, object)) {}
  ~Selection() { SelectObject(dc_, old_); }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  HDC dc_;
  HGDIOBJ old_;
};

}  // namespace

HRESULT CaptureWindow(HWND window, Bitmap& out) {
  RECT rect{};
  if (!IsWindow(window) || !GetWindowRect(window, &rect)) return E_INVALIDARG;
  const int width = rect.right - rect.left;
  const int height = rect.bottom - rect.top;
  if (width <= 0 || height <= 0) return E_INVALIDARG;

  // The window's own DC: its frame and children as painted, wherever it sits on the screen.
  WindowDc source(window);
  MemoryDc memory(CreateCompatibleDC(source.get()));
  if (!source.get() || !memory) return E_FAIL;

  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // top-down rows
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 24;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  GdiBitmap bitmap(CreateDIBSection(source.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap || !bits) return E_OUTOFMEMORY;
  {
    Selection selected(memory.get(), bitmap.get());
    if (!BitBlt(memory.get(), 0, 0, width, height, source.get(), 0, 0, SRCCOPY))
      return HRESULT_FROM_WIN32(GetLastError());
  }
  GdiFlush();

  out.width = width;
  out.height = height;
  const auto* first = static_cast<const std::uint8_t*>(bits);
  out.bgr.assign(first, first + static_cast<size_t>(out.Stride()) * height);
  return S_OK;
}

HRESULT WritePng(const Bitmap& bitmap, const std::wstring& path) {
  if (bitmap.width <= 0 || bitmap.height <= 0 ||
      bitmap.bgr.size() < static_cast<size_t>(bitmap.Stride()) * bitmap.height)
    return E_INVALIDARG;

  ComPtr<IWICImagingFactory> factory;
  HRESULT hr = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                reinterpret_cast<void**>(factory.put()));
  if (FAILED(hr)) return hr;

  ComPtr<IWICStream> stream;
  if (FAILED(hr = factory->CreateStream(stream.put()))) return hr;
  if (FAILED(hr = stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE))) return hr;

  ComPtr<IWICBitmapEncoder> encoder;
  if (FAILED(hr = factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.put()))) return hr;
  if (FAILED(hr = encoder->Initialize(stream.get(), WICBitmapEncoderNoCache))) return hr;

  ComPtr<IWICBitmapFrameEncode> frame;
  ComPtr<IPropertyBag2> options;
  if (FAILED(hr = encoder->CreateNewFrame(frame.put(), options.put()))) return hr;
  if (FAILED(hr = frame->Initialize(options.get()))) return hr;
  if (FAILED(hr = frame->SetSize(static_cast<UINT>(bitmap.width), static_cast<UINT>(bitmap.height)))) return hr;
  WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
  if (FAILED(hr = frame->SetPixelFormat(&format))) return hr;
  // The encoder may only offer a different layout; converting is not worth it here.
  if (!IsEqualGUID(format, GUID_WICPixelFormat24bppBGR)) return WINCODEC_ERR_UNSUPPORTEDPIXELFORMAT;
  if (FAILED(hr = frame->WritePixels(static_cast<UINT>(bitmap.height), bitmap.Stride(),
                                     static_cast<UINT>(bitmap.bgr.size()), const_cast<BYTE*>(bitmap.bgr.data()))))
    return hr;
  if (FAILED(hr = frame->Commit())) return hr;
  return encoder->Commit();
}

HRESULT CaptureWindowToPng(HWND window, const std::wstring& path) {
  // Paint now, children included, rather than waiting for the message loop to go idle.
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
  GdiFlush();
  Bitmap bitmap;
  HRESULT hr = CaptureWindow(window, bitmap);
  if (FAILED(hr)) return hr;
  return WritePng(bitmap, path);
}

}  // namespace orv::apps
