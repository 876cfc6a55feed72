#pragma once
// orvhost's resources.
#define IDR_SAMPLE_LSPS 101
