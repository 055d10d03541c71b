// Command-line quoting that CommandLineToArgvW reads back to exactly the same argument.
#pragma once

#include <string>

std::wstring QuoteArgument(const std::wstring& text);
