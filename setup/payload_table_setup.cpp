// The setup build's payload: the package and the skin documents (a missing resource is skipped).
#include "setup/payload.h"

const PayloadRow* EmbeddedPayloadTable() {
  static const PayloadRow kTable[] = {
      {3001, L"installer\\Stayhold.msi"},
      {3002, L"skins\\00-tessel-default-skins.json"},
      {3003, L"skins\\01-tessel-black-gemstone-skins.json"},
      {3004, L"skins\\02-tessel-material-gallery-skins.json"},
      {3005, L"skins\\stayhold-tactical-3d.json"},
      {0, nullptr},
  };
  return kTable;
}
