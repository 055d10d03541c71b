// Version order for updates: every run of ASCII digits is one 32-bit number (wrapping), anything
// else separates, the shorter list is padded with zeros, and numbers compare as signed 32-bit.
#pragma once

#include <string>

// Negative, zero or positive.
int CompareVersions(const std::wstring& a, const std::wstring& b);
