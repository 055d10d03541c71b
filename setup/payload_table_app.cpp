// The guard application carries no payload.
#include "setup/payload.h"

const PayloadRow* EmbeddedPayloadTable() {
  static const PayloadRow kTable[] = {{0, nullptr}};
  return kTable;
}
