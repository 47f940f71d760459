#include "empty_functions.h"

namespace mqp::bench {
namespace {

constinit unsigned char totals[12][80][8][4] = {};

}  // namespace

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

int DenseTotal(int analysisType, int resultType, int, int meshKind, int, int, int, int option,
               int) noexcept {
  return totals[analysisType][resultType][meshKind][option];
}
unsigned char& DenseCell(int analysisType, int resultType, int meshKind, int option) noexcept {
  return totals[analysisType][resultType][meshKind][option];
}

}  // namespace mqp::bench
