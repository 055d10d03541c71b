#include "guard/config.h"

StayholdConfig& AppConfig() {
  static StayholdConfig config;
  return config;
}
