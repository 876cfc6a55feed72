#pragma once
// orvhost's resources.
#define IDR_SAMPLE_LSPS 101
#define IDR_SAMPLE_LANGUAGE 102
#define IDR_SAMPLE_PREFS 103
