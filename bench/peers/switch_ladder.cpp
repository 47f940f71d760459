#include "switch_ladder.h"

namespace mqp::bench {
namespace {

constexpr int kShell = 2;
constexpr int kMixed = 3;
constexpr int kBeam = 4;

bool IsRotational(int meshKind, int meshFlags) {
  switch (meshKind) {
    case kShell:
    case kBeam: return true;
    case kMixed: return (meshFlags & 6) != 0;
    default: return false;
  }
}

int StaticTotal(int resultType, bool isRotational, int extraStress, int moreStress) {
  switch (resultType) {
    case 1: return isRotational ? 15 : 8;
    case 2:
    case 57:
      if (extraStress != 0) {
        return moreStress != 0 ? 16 : 14;
      }
      return 12;
    case 3:
    case 22: return 12;
    case 18: return 3;
    case 55: return 4;
    case 59: return 7;
    default: return 0;
  }
}

int SteppedTotal(int resultType, bool isRotational, int meshKind) {
  switch (resultType) {
    case 1: return isRotational ? 15 : 8;
    case 2: return meshKind == kBeam ? 7 : 14;
    case 3:
    case 22: return 12;
    case 19:
    case 20: return meshKind == kBeam ? 7 : 4;
    case 59: return 7;
    default: return 0;
  }
}

int ReducedTotal(int resultType) {
  switch (resultType) {
    case 1:
    case 19:
    case 20: return 4;
    case 2: return 14;
    case 3:
    case 22: return 12;
    default: return 0;
  }
}

int DynamicTotal(int resultType, int meshKind, int dynamicOption, int dynamicChoice) {
  switch (resultType) {
    case 1: return meshKind != 0 ? 15 : 8;
    case 2:
      if (meshKind == kBeam) {
        return 5;
      }
      return dynamicOption == 1 && dynamicChoice == 7 ? 13 : 12;
    case 3:
    case 22: return 12;
    case 19:
    case 20: return meshKind != 0 ? 7 : 4;
    case 59: return 5;
    default: return 0;
  }
}

int FlowTotal(int resultType) {
  switch (resultType) {
    case 6: return 8;
    case 7: return 5;
    case 8:
    case 9:
    case 10: return 7;
    case 11: return 12;
    default: return 0;
  }
}

}  // namespace

int LadderTotal(int analysisType, int resultType, int extraStress, int meshKind, int moreStress,
                int meshFlags, int dynamicOption, int dynamicChoice) noexcept {
  const bool isRotational = IsRotational(meshKind, meshFlags);
  switch (analysisType) {
    case 0: return StaticTotal(resultType, isRotational, extraStress, moreStress);
    case 1: return resultType == 1 ? 4 : 0;
    case 2: return resultType != 1 ? 0 : (isRotational ? 7 : 4);
    case 3: return resultType == 5 ? 9 : 0;
    case 5: return SteppedTotal(resultType, isRotational, meshKind);
    case 6: return ReducedTotal(resultType);
    case 7: return 4;
    case 8: return DynamicTotal(resultType, meshKind, dynamicOption, dynamicChoice);
    case 10: return FlowTotal(resultType);
    default: return 0;
  }
}

}  // namespace mqp::bench
