// The machine-wide registry (HKEY_LOCAL_MACHINE) as the policy writer and reader use it: create a
// key and set DWORD values in it, and read one DWORD value. A portable seam, so the order of the
// writes, the failure rules and the judgement are tested natively.
#pragma once

#include <cstdint>
#include <string>

class MachineRegistry {
 public:
  virtual ~MachineRegistry() = default;
  // RegCreateKeyExW for KEY_SET_VALUE, non-volatile; the result is the Windows error code.
  virtual long CreateKey(const std::wstring& key) = 0;
  // RegSetValueExW of a REG_DWORD in the key last created; false on failure.
  virtual bool SetDword(const std::wstring& name, uint32_t value) = 0;
  virtual void CloseKey() = 0;
  // True only when the key opens, the value reads, its type is REG_DWORD and its size 4.
  virtual bool ReadDword(const std::wstring& key, const std::wstring& name, uint32_t& value) = 0;
};

MachineRegistry& SystemMachineRegistry();

// A registry to use in place of the system's while set; for tests that need a refusing one
// (Wine runs everything as administrator).
MachineRegistry*& MachineRegistryOverride();
