#include <algorithm>

#include <mqPostCommon/materials/element_values.h>

using Values = CMqNodalResultValuesOfElement;
using Tensors = CMqStressTensorValuesOfAllNodesOfElement;

CMqNodalResultValuesOfElement::CMqNodalResultValuesOfElement() = default;
CMqNodalResultValuesOfElement::CMqNodalResultValuesOfElement(const Values&) = default;
Values& CMqNodalResultValuesOfElement::operator=(const Values&) = default;
CMqNodalResultValuesOfElement::~CMqNodalResultValuesOfElement() = default;

CMqNodalResultValuesOfElement::CMqNodalResultValuesOfElement(int nNodes, const int* nodeIds,
                                                             const float (*tensors)[6],
                                                             float factor) noexcept
    : m_nNodes(nNodes) {
  std::copy_n(nodeIds, 10, m_nNodeIDs);
  std::transform(tensors, tensors + 10, m_fValues,
                 [factor](const float(&tensor)[6]) { return factor * tensor[0]; });
}

CMqStressTensorValuesOfAllNodesOfElement::CMqStressTensorValuesOfAllNodesOfElement() = default;
CMqStressTensorValuesOfAllNodesOfElement::CMqStressTensorValuesOfAllNodesOfElement(const Tensors&) =
    default;
Tensors& CMqStressTensorValuesOfAllNodesOfElement::operator=(const Tensors&) = default;
CMqStressTensorValuesOfAllNodesOfElement::~CMqStressTensorValuesOfAllNodesOfElement() = default;

void CMqStressTensorValuesOfAllNodesOfElement::ApplyUnits(float factor) noexcept {
  const auto scale = [factor](auto& block) {
    for (float(&tensor)[6] : block) {
      for (float& component : tensor) {
        component *= factor;
      }
    }
  };
  scale(m_fStressTensor);
  scale(m_fStressTensor2);
}

Values CMqStressTensorValuesOfAllNodesOfElement::GetSpecificResult(float factor) const noexcept {
  return {m_nNodes, m_nNodeIDs, m_fStressTensor, factor};
}
