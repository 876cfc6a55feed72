#include "ComObjects.h"

#include "xml/StrFormat.h"

#include <cstdint>
#include <utility>

namespace orv::host_app {
namespace {

// IChartData over the synthetic chart: statuses and out parameters as a host gives them.
class ChartData final : public ComObject<ChartData, IChartData> {
 public:
  explicit ChartData(std::shared_ptr<SyntheticChartData> chart) : chart_(std::move(chart)) {}

  static std::span<const ComInterfaceEntry> Interfaces() {
    static constexpr ComInterfaceEntry table[] = {ComInterface<ChartData, IChartData>(IID_IChartData)};
    return table;
  }

  HRESULT STDMETHODCALLTYPE GetBarCount(LONG* count) override {
    if (count == nullptr) return E_INVALIDARG;
    *count = chart_->LastPos() + 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetValue(LONG field, LONG barPos, double* value) override {
    if (value == nullptr) return E_INVALIDARG;
    return chart_->GetValue(field, barPos, *value);
  }
  HRESULT STDMETHODCALLTYPE GetTimeKind(LONG* kind) override {
    if (kind == nullptr) return E_INVALIDARG;
    std::int32_t answer = 0;
    const HRESULT hr = chart_->GetTimeKind(answer);
    *kind = answer;
    return hr;
  }
  HRESULT STDMETHODCALLTYPE DateToPos(LONG date, LONG time, LONG, LONG, LONG* exact, LONG* barPos) override {
    if (barPos == nullptr) return E_INVALIDARG;
    std::int32_t isExact = 1, position = -1;
    const HRESULT hr = chart_->DateToPos(date, time, &isExact, position);
    *barPos = position;
    if (exact != nullptr) *exact = isExact;
    return hr;
  }
  HRESULT STDMETHODCALLTYPE PosToDate(LONG barPos, LONG* date, LONG* time, LONG* seconds, LONG, LONG) override {
    if (date == nullptr) return E_INVALIDARG;
    std::int32_t d = 0, t = 0, s = 0;
    const HRESULT hr = chart_->PosToDate(barPos, d, t, s);
    if (FAILED(hr)) return hr;
    *date = d;
    if (time != nullptr) *time = t;
    if (seconds != nullptr) *seconds = s;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE PosToDateOnly(LONG barPos, LONG* date, LONG) override {
    if (date == nullptr) return E_INVALIDARG;
    std::int32_t d = 0;
    const HRESULT hr = chart_->PosToDateOnly(barPos, d);
    if (SUCCEEDED(hr)) *date = d;
    return hr;
  }

 private:
  std::shared_ptr<SyntheticChartData> chart_;
};

void AppendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

}  // namespace

ComPtr<IChartData> MakeChartData(std::shared_ptr<SyntheticChartData> chart) {
  return ChartData::Make(std::move(chart));
}

std::shared_ptr<SyntheticChartData> HostChart(bool intraday) {
  return intraday ? SyntheticChartData::Intraday(10, 2024, 6, 28) : SyntheticChartData::Daily(500, 2024, 6, 28);
}

std::string EscapeEventText(const wchar_t* text, UINT length) {
  std::string out;
  for (UINT i = 0; i < length; ++i) {
    unsigned code = text[i];
    switch (code) {
      case L'\r':
        out += "\\r";
        continue;
      case L'\n':
        out += "\\n";
        continue;
      case L'\t':
        out += "\\t";
        continue;
      case L'\\':
        out += "\\\\";
        continue;
      default:
        break;
    }
    if (code < 0x20 || code == 0x7F) {
      out += StrFormat("\\x%02X", code);
      continue;
    }
    if (code >= 0xD800 && code < 0xDC00 && i + 1 < length && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
      code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<unsigned>(text[++i]) - 0xDC00);
    } else if (code >= 0xD800 && code < 0xE000) {
      code = 0xFFFD;  // a lone surrogate
    }
    AppendUtf8(out, code);
  }
  return out;
}

std::span<const ComInterfaceEntry> StatusEventPrinter::Interfaces() {
  static constexpr ComInterfaceEntry table[] = {
      ComInterface<StatusEventPrinter, IDispatch>(IID_IDispatch),
      ComInterface<StatusEventPrinter, IDispatch>(DIID__IChartPagesEvents),
  };
  return table;
}

HRESULT StatusEventPrinter::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT StatusEventPrinter::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return E_NOTIMPL;
}

HRESULT StatusEventPrinter::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return E_NOTIMPL; }

HRESULT StatusEventPrinter::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT*, EXCEPINFO*,
                                   UINT* argError) {
  constexpr DISPID kStatusEvent = 101;
  if (id != kStatusEvent) return DISP_E_MEMBERNOTFOUND;
  if (!(flags & DISPATCH_METHOD)) return DISP_E_MEMBERNOTFOUND;
  if (params == nullptr || params->cArgs != 5 || params->cNamedArgs != 0) return DISP_E_BADPARAMCOUNT;
  // Positional arguments arrive last first: plReturn, pXMLExtra, lValue, pValue, lType.
  VARIANT& value = params->rgvarg[3];
  const BSTR text = value.vt == VT_BSTR                                             ? value.bstrVal
                    : value.vt == (VT_BSTR | VT_BYREF) && value.pbstrVal != nullptr ? *value.pbstrVal
                                                                                    : nullptr;
  if (value.vt != VT_BSTR && value.vt != (VT_BSTR | VT_BYREF)) {
    if (argError != nullptr) *argError = 3;
    return DISP_E_TYPEMISMATCH;
  }
  ++events_;
  const std::string line = EscapeEventText(text, SysStringLen(text));
  std::fprintf(out_, "StatusEvent: %s\n", line.c_str());
  std::fflush(out_);
  VARIANT& answer = params->rgvarg[0];
  if (answer.vt == (VT_I4 | VT_BYREF) && answer.plVal != nullptr) *answer.plVal = 0;
  return S_OK;
}

EventConnection::~EventConnection() {
  if (point_) point_->Unadvise(cookie_);
}

HRESULT EventConnection::Connect(IUnknown* source, REFIID iid, IUnknown* sink) {
  ComPtr<IConnectionPointContainer> container;
  HRESULT hr = source->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(container.put()));
  if (FAILED(hr)) return hr;
  ComPtr<IConnectionPoint> point;
  hr = container->FindConnectionPoint(iid, point.put());
  if (FAILED(hr)) return hr;
  DWORD cookie = 0;
  hr = point->Advise(sink, &cookie);
  if (FAILED(hr)) return hr;
  point_ = std::move(point);
  cookie_ = cookie;
  return S_OK;
}

}  // namespace orv::host_app
