#pragma once
// CSznWzrdPgSeason: the wizard page of the season: start and end month, and its preview.
//
// The months are stored in the state as dates whenever either list changes and whenever the page
// becomes active: Start on the first day of its month, End on the last day of its month (February
// always the 28th), both in the year of Start, also when the season spans the new year. The
// preview alone moves End into the next year then; it changes no state.

#include <string>

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgSeason final : public orv::seasonal::CWzrdPg<CSznWzrdPgSeason, IDD_SZN_SEASON> {
 public:
  using CWzrdPg::CWzrdPg;

  bool OnSetActive() override;
  int OnWizardNext() override;
  void OnCommand(int id, int code) override;

  // "%s - %s" of Start and End by "%b/%d/%Y"; End a year later when Start lies after it.
  static std::string SeasonPreview(const orv::seasonal::WizardSeasonState& state);

 protected:
  bool OnInitPage() override;

 private:
  void StoreDates();
  void ShowPreview();
};
