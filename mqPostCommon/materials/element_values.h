/// \file
/// Result values at the nodes of one element. An element has at most ten nodes; the slots of the
/// others are carried along.
#pragma once

#include <mqPostCommon/export.h>

/// One scalar at each node of an element.
class MQPOSTCOMMON_API CMqNodalResultValuesOfElement {
 public:
  CMqNodalResultValuesOfElement();
  /// Takes the first component of each tensor times a factor, in single precision.
  /// \param nNodes  number of nodes, kept as it is
  /// \param nodeIds ten node ids, whatever `nNodes` is
  /// \param tensors ten rows of six components
  /// \param factor  dimensionless, or a unit conversion; not checked
  CMqNodalResultValuesOfElement(int nNodes, const int* nodeIds, const float (*tensors)[6],
                                float factor) noexcept;
  CMqNodalResultValuesOfElement(const CMqNodalResultValuesOfElement&);
  CMqNodalResultValuesOfElement& operator=(const CMqNodalResultValuesOfElement&);
  virtual ~CMqNodalResultValuesOfElement();

  int m_nNodeIDs[10] = {};
  float m_fValues[10] = {};  ///< at the node of the same slot, in the unit that the host chose
  int m_nNodes = 1;          ///< slots in use, from the first on; not checked against ten
};

/// A stress tensor at each node of an element, its six components in the order of the host.
class MQPOSTCOMMON_API CMqStressTensorValuesOfAllNodesOfElement {
 public:
  CMqStressTensorValuesOfAllNodesOfElement();
  CMqStressTensorValuesOfAllNodesOfElement(const CMqStressTensorValuesOfAllNodesOfElement&);
  CMqStressTensorValuesOfAllNodesOfElement& operator=(
      const CMqStressTensorValuesOfAllNodesOfElement&);
  virtual ~CMqStressTensorValuesOfAllNodesOfElement();

  /// Multiplies all components of both blocks, in single precision.
  /// \param factor from the solver's stress unit to the display unit; not checked
  void ApplyUnits(float factor) noexcept;
  /// The first component of each tensor of the first block times a factor; no invariant.
  [[nodiscard]] CMqNodalResultValuesOfElement GetSpecificResult(float factor) const noexcept;

  int m_nNodes = 1;  ///< slots in use, from the first on; not checked against ten
  int m_nNodeIDs[10] = {};
  float m_fStressTensor[10][6] = {};  ///< at the node of the same slot
  float m_fStressTensor2[6][6] = {};  ///< a second block for the first six slots
};
