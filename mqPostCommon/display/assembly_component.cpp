#include <utility>

#include <mqPostCommon/display/assembly_component.h>

namespace mqp {
namespace {

using FlipRecords = CArray<CShellEntityID_FlipData*>;

bool IsOwner(const AsmCompMembers& component) noexcept {
  return component.m_bOwnsMeshData == 1 || component.m_bOwnsMeshData2 == 1;
}

void DeleteRecords(FlipRecords& records) noexcept {
  for (int index = 0; index < records.GetSize(); ++index) {
    delete records[index];
  }
  records.RemoveAll();
}

/// Deletes what has been made of the copies when memory runs out.
struct UnfinishedRecords {
  FlipRecords records;
  ~UnfinishedRecords() { DeleteRecords(records); }
};

FlipRecords Duplicate(const FlipRecords& records) {
  UnfinishedRecords copies;
  for (int index = 0; index < records.GetSize(); ++index) {
    const CShellEntityID_FlipData* record = records[index];
    copies.records.Add(nullptr);
    copies.records[index] = record == nullptr ? nullptr : new CShellEntityID_FlipData(*record);
  }
  return std::move(copies.records);
}

}  // namespace
}  // namespace mqp

CDspAsmComp::CDspAsmComp() = default;

CDspAsmComp::CDspAsmComp(int compId, int firstElem, int lastElem, const COGLColor& color,
                         const COGLColor& bottomColor, int hidden)
    : CDspAsmComp(compId, firstElem, lastElem, color, hidden) {
  m_BottomColor = bottomColor;
}

CDspAsmComp::CDspAsmComp(int compId, int firstElem, int lastElem, const COGLColor& color,
                         int hidden) {
  m_nCompID = compId;
  m_nFirstElem = firstElem;
  m_nLastElem = lastElem;
  m_Color = color;
  m_bHidden = hidden;
  m_nVisIndexBase = static_cast<int>(static_cast<unsigned>(firstElem) + 1U);  // wraps around
}

CDspAsmComp::CDspAsmComp(const CDspAsmComp& other)
    : AsmCompMembers(other), m_nHost27(other.m_nHost27) {
  if (mqp::IsOwner(other)) {
    m_arrFlipData = mqp::Duplicate(other.m_arrFlipData);
  } else {
    m_arrFlipData.Copy(other.m_arrFlipData);
  }
}

CDspAsmComp::CDspAsmComp(CDspAsmComp&& other) noexcept = default;

CDspAsmComp& CDspAsmComp::operator=(const CDspAsmComp& other) {
  if (this != &other) {
    AsmCompMembers members(other);
    m_arrFlipData = mqp::Duplicate(other.m_arrFlipData);  // the old records become the host's
    AsmCompMembers::operator=(std::move(members));
    m_nHost27 = other.m_nHost27;
  }
  return *this;
}

CDspAsmComp::~CDspAsmComp() {
  if (mqp::IsOwner(*this)) {
    mqp::DeleteRecords(m_arrFlipData);
  }
}

int CDspAsmComp::operator==(const CDspAsmComp& other) const noexcept {
  return m_nCompID == other.m_nCompID && m_nFirstElem == other.m_nFirstElem &&
                 m_nLastElem == other.m_nLastElem && m_bHidden == other.m_bHidden &&
                 m_nBodyID == other.m_nBodyID
             ? 1
             : 0;
}

int CDspAsmComp::PostAvailable() const noexcept {
  return m_nFirstElem >= 0 && m_nLastElem >= m_nFirstElem ? 1 : 0;
}

void CDspAsmComp::FlipColor() noexcept {
  std::swap(m_Color, m_BottomColor);
}
