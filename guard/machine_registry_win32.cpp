#include <windows.h>

#include "guard/machine_registry.h"

namespace {

class Win32MachineRegistry final : public MachineRegistry {
 public:
  long CreateKey(const std::wstring& key) override {
    CloseKey();
    return RegCreateKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                           KEY_SET_VALUE, nullptr, &open_, nullptr);
  }

  bool SetDword(const std::wstring& name, uint32_t value) override {
    const DWORD data = value;
    return open_ &&
           RegSetValueExW(open_, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&data),
                          sizeof(data)) == ERROR_SUCCESS;
  }

  void CloseKey() override {
    if (open_) RegCloseKey(open_);
    open_ = nullptr;
  }

  bool ReadDword(const std::wstring& key, const std::wstring& name, uint32_t& value) override {
    HKEY handle = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_QUERY_VALUE, &handle) !=
        ERROR_SUCCESS) {
      return false;
    }
    DWORD data = 0;
    DWORD type = 0;
    DWORD size = sizeof(data);
    const LSTATUS status = RegQueryValueExW(handle, name.c_str(), nullptr, &type,
                                            reinterpret_cast<BYTE*>(&data), &size);
    RegCloseKey(handle);
    if (status != ERROR_SUCCESS || type != REG_DWORD || size != sizeof(DWORD)) return false;
    value = data;
    return true;
  }

 private:
  HKEY open_ = nullptr;
};

}  // namespace

MachineRegistry& SystemMachineRegistry() {
  static Win32MachineRegistry registry;
  return registry;
}
