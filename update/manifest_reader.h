// The update manifest read by a few text searches, not a JSON parser: the first occurrence of a
// quoted key decides, a backslash takes the next character (\n, \r, \t become control
// characters, nothing else is decoded), and the history is the first bracketed array behind
// "history" or, without one, "versions".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "update/update_manifest.h"

// The string value of the first "key" in the text; nullopt when any search fails.
std::optional<std::wstring> ReadManifestString(const std::wstring& text, const std::wstring& key);

// The text of the array behind "key", brackets included; nullopt without a closing bracket.
std::optional<std::wstring> ReadManifestArray(const std::wstring& text, const std::wstring& key);

// The texts of the top-level objects of an array, braces included.
std::vector<std::wstring> SplitManifestObjects(const std::wstring& array);

// All fields, the history completed with the latest version when it has a note and no entry.
UpdateManifest ParseUpdateManifest(const std::wstring& text,
                                   const std::wstring& default_release_url);

// The note in the interface language: Czech, English, else the neutral text.
std::wstring LocalizedChangeNote(const std::wstring& changes, const std::wstring& changes_cs,
                                 const std::wstring& changes_en);

// The notes of every version between the installed one and the manifest's, newest first.
std::wstring BuildChangeNotesSinceInstalled(const UpdateManifest& manifest);
