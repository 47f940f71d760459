#include "empty_functions.h"

namespace mqp::bench {

int EmptyTotal(int, int, int, int, int, int, int, int, int) noexcept {
  return 0;
}
int EmptyDataType(int, int, int, int*, int) noexcept {
  return 0;
}
int EmptyDefault(int, int, int, int, int) noexcept {
  return 0;
}
int EmptyQuery(int, int, int, int) noexcept {
  return 0;
}
int EmptyUnitType(int, int, int, int, int) noexcept {
  return 0;
}
int EmptyUnitDefault(int, int, int, int, int, int) noexcept {
  return 0;
}
void EmptyDirection(int, int, int, int, float*) noexcept {}
CString EmptyName(int, int, int, int, int, int) {
  return {};
}
CString EmptyUnitName(int, int) {
  return {};
}
int EmptyLookup(int, int, int, CString, int) {
  return 0;
}

}  // namespace mqp::bench
