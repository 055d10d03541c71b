// Windows path text handled as text, so that it behaves the same in native tests: joining,
// lexical normalization of "." and "..", and the folder of a module file name.
#pragma once

#include <string>

// `folder` and `name` with one backslash between; empty when `folder` is empty.
std::wstring JoinPath(const std::wstring& folder, const std::wstring& name);

// Resolves "." and ".." and repeated separators without touching the disk; never climbs above a
// root ("C:\", "\\server\share\", "\"). Separators come out as backslashes.
std::wstring LexicallyNormalPath(const std::wstring& path);

// The folder part of a module file name read into `capacity` characters, `copied` being what the
// call returned: empty for 0, for a full buffer (possible truncation), or without a backslash.
std::wstring ModuleFolderFromFileName(const std::wstring& text, unsigned copied, unsigned capacity);
