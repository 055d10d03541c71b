#include "tests/support/memory_profile_store.h"

MemoryProfileStore& MemoryStore() {
  static MemoryProfileStore store;
  return store;
}
