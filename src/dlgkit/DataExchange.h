#pragma once
// CWinDataExchangeZel<T>: the program's exchange and validation routines between a dialog's
// controls and its member variables, with the "out of range" messages.
//
// CRTP: T derives from CWinDataExchangeZel<T> and provides `orv::Controls& Ctl()`.
// T may hide OnDataExchangeError / OnDataValidateError with its own (same signature) to change
// what a failure does; the routines below call them through T.
//
// Every routine takes `save`: true moves control -> member, false member -> control.
// A routine that fails has already beeped and put the focus on the control; the caller stops
// its exchange and the dialog stays open. A member that failed validation keeps the rejected value.

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "dlgkit/Controls.h"
#include "dlgkit/FloatParse.h"
#include "xml/StrFormat.h"

// The error record handed to OnDataValidateError.
struct CDataValidateError {
  static constexpr int kInt = 2;     // intData holds value, min, max
  static constexpr int kDouble = 4;  // floatData holds value, min, max
  int nDataType = 0;
  struct {
    int nVal = 0, nMin = 0, nMax = 0;
  } intData;
  struct {
    double nVal = 0, nMin = 0, nMax = 0;
  } floatData;
};

template <class T>
class CWinDataExchangeZel {
 public:
  // Edit fields for floating values are read and written through a 32-character buffer.
  static constexpr std::size_t kFloatBuffer = 32;
  // Precision beyond 17 digits adds nothing to a double and could overflow the 32 characters.
  static constexpr int kMaxFloatPrecision = 17;
  // The first read of a text field; a longer text is read again with more room.
  static constexpr std::size_t kTextBuffer = 256;

  void DDX_Check(int id, bool* value, bool save) {
    if (save) {
      *value = ExchangeControls().IsDlgButtonChecked(id) == orv::kBstChecked;
    } else {
      ExchangeControls().CheckDlgButton(id, *value ? orv::kBstChecked : orv::kBstUnchecked);
    }
  }

  // A text that isn't a whole number leaves *value as it was. With validate, a number outside
  // [min, max] (both inclusive) is stored and then refused, without a message.
  bool DDX_Int(int id, int* value, bool isSigned, bool save, bool validate = false, int min = 0, int max = 0) {
    if (!save) {
      if (ExchangeControls().SetDlgItemInt(id, static_cast<unsigned>(*value), isSigned)) return true;
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    bool translated = false;
    const unsigned read = ExchangeControls().GetDlgItemInt(id, &translated, isSigned);
    if (!translated) {
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    *value = static_cast<int>(read);
    if (validate && (*value < min || *value > max)) {
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    return true;
  }

  // Reads at most 31 characters by orv::ParseFloatField; a refused text leaves *value as it was.
  // With validate the value must satisfy min <= value <= max; it is stored before that test.
  // Towards the control: "%.*g" with `precision` (clamped to 0..17).
  bool DDX_Float(int id, double* value, bool save, bool validate = false, double min = 0.0, double max = 0.0,
                 int precision = 15) {
    if (!save) {
      std::string text = orv::StrFormat("%.*g", std::clamp(precision, 0, kMaxFloatPrecision), *value);
      if (text.size() >= kFloatBuffer) text.resize(kFloatBuffer - 1);  // the field's 32-character buffer
      if (ExchangeControls().SetDlgItemTextA(id, text)) return true;
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    const auto parsed = orv::ParseFloatField(ExchangeControls().GetDlgItemTextA(id, kFloatBuffer));
    if (!parsed) {
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    *value = *parsed;
    if (validate && !(min <= *value && *value <= max)) {
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    return true;
  }

  // Member <-> item data of a combo box. An empty combo box does nothing. Towards the control
  // the first item holding the member is selected, item 0 when none does; on save the data of
  // the current item (item 0 when nothing is selected) is stored.
  bool DDX_ComboData(int comboId, int* value, bool save) {
    orv::Controls& ctl = ExchangeControls();
    if (ctl.ComboGetCount(comboId) <= 0) return true;
    if (save) {
      const int selection = std::max(ctl.ComboGetCurSel(comboId), 0);
      *value = static_cast<int>(ctl.ComboGetItemData(comboId, selection));
    } else {
      const int index = ctl.ComboFindItemData(comboId, *value);
      ctl.ComboSetCurSel(comboId, index < 0 ? 0 : index);
    }
    return true;
  }

  // Member <-> the whole text of a control, however long. A control that isn't there fails
  // (beep and focus) and leaves *value as it was.
  bool DDX_Text(int id, std::string* value, bool save) {
    orv::Controls& ctl = ExchangeControls();
    if (!save) {
      if (ctl.SetDlgItemTextA(id, *value)) return true;
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    if (!ctl.HasDlgItem(id)) {
      Derived().OnDataExchangeError(id, save);
      return false;
    }
    // A text that fills the buffer may go on: read again with twice the room until it doesn't.
    std::size_t buffer = kTextBuffer;
    std::string text = ctl.GetDlgItemTextA(id, buffer);
    while (text.size() + 1 >= buffer) {
      buffer *= 2;
      text = ctl.GetDlgItemTextA(id, buffer);
    }
    *value = std::move(text);
    return true;
  }

  // True unless saving a value outside [min, max] (both inclusive).
  bool DDV_MinMaxInt(int id, int value, bool save, int min, int max) {
    if (!save || (value >= min && value <= max)) return true;
    CDataValidateError error;
    error.nDataType = CDataValidateError::kInt;
    error.intData.nVal = value;
    error.intData.nMin = min;
    error.intData.nMax = max;
    Derived().OnDataValidateError(id, save, error);
    return false;
  }

  // The lower bound is exclusive here, unlike DDX_Float's: a minimum of 0 refuses exactly 0.
  bool DDV_MinMaxFloat(int id, double value, bool save, double min, double max) {
    if (!save || !(value <= min || value > max)) return true;
    CDataValidateError error;
    error.nDataType = CDataValidateError::kDouble;
    error.floatData.nVal = value;
    error.floatData.nMin = min;
    error.floatData.nMax = max;
    Derived().OnDataValidateError(id, save, error);
    return false;
  }

  // The message of a failed range check. Types other than 2 and 4 build no text, but still
  // beep and focus.
  void OnDataValidateError(int id, bool save, const CDataValidateError& error) {
    orv::Controls& ctl = ExchangeControls();
    const std::string text = DataValidateErrorText(error);
    if (!text.empty()) ctl.OrvMessageBox(text, "Error", 0);
    ctl.MessageBeep(orv::kBeepSimple);
    ctl.SetFocus(id);
  }

  // A value that couldn't be read or written: beep and focus, no text.
  void OnDataExchangeError(int id, bool save) {
    orv::Controls& ctl = ExchangeControls();
    ctl.MessageBeep(orv::kBeepSimple);
    ctl.SetFocus(id);
  }

  static std::string DataValidateErrorText(const CDataValidateError& error) {
    switch (error.nDataType) {
      case CDataValidateError::kInt:
        return orv::StrFormat("%d out of range: [%d,%d]", error.intData.nVal, error.intData.nMin, error.intData.nMax);
      case CDataValidateError::kDouble:
        return orv::StrFormat("%g out of range: [%g,%g]", error.floatData.nVal, error.floatData.nMin,
                              error.floatData.nMax);
      default:
        return {};
    }
  }

 protected:
  ~CWinDataExchangeZel() = default;

 private:
  T& Derived() { return static_cast<T&>(*this); }
  // T's Ctl(); a distinct name so a T without one fails to compile instead of recursing.
  orv::Controls& ExchangeControls() { return Derived().Ctl(); }
};
