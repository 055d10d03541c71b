// Writing a payload resource of the running program to a file.
#pragma once

#include <string>

// False for a missing or empty resource or a file that could not be written; overwrites.
bool WriteEmbeddedResource(int resource_id, const std::wstring& target_path);
