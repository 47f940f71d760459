/// \file
/// The total of components as nested switches and ifs, the way such rules grow by hand.
#pragma once

namespace mqp::bench {

int LadderTotal(int analysisType, int resultType, int extraStress, int meshKind, int moreStress,
                int meshFlags, int dynamicOption, int dynamicChoice) noexcept;

}  // namespace mqp::bench
