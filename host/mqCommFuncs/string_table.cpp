#include "string_table.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "built_in_texts.h"
#include "text_table.h"

namespace mqp::host {
namespace {

/// The built-in texts with others in place of some. A replaced text stays in the run of units:
/// replacing is rare, and places refer to units by number.
class Overlay {
 public:
  void Replace(UINT id, mqTextView text) {
    const UINT slot = id - kFirstId;
    if (slot >= kIdCount) {
      m_others[id] = Run(PaddedText::kUnits, 0);
      Append(text, m_others[id]);
      return;
    }
    m_places[slot] = {static_cast<std::uint32_t>(m_units.size() - PaddedText::kUnits),
                      static_cast<std::uint32_t>(text.size())};
    Append(text, m_units);
  }

  [[nodiscard]] const TextPlace* Places() const noexcept { return m_places.data(); }
  [[nodiscard]] const mqChar* Units() const noexcept { return m_units.data(); }

  /// The text of an id outside the range of the built-in ones.
  [[nodiscard]] std::optional<PaddedText> FindOther(UINT id) const noexcept {
    const auto found = m_others.find(id);
    if (found == m_others.end()) {
      return std::nullopt;
    }
    return PaddedText{found->second.data(), found->second.size() - PaddedText::kUnits};
  }

 private:
  /// Units of texts with what is copied along behind them.
  using Run = std::basic_string<mqChar>;

  static void Append(mqTextView text, Run& run) {
    run.resize(run.size() - PaddedText::kUnits);
    run += text;
    run.resize(run.size() + PaddedText::kUnits);
  }

  std::vector<TextPlace> m_places{kBuiltIn.places.begin(), kBuiltIn.places.end()};
  Run m_units{kBuiltIn.units.begin(), kBuiltIn.units.end()};
  std::map<UINT, Run> m_others;
};

/// The texts in use, by id from `kFirstId` on. Without an overlay they are the built-in ones.
/// The overlay is not destroyed at exit: destructors of other libraries may still load texts.
struct TextsInUse {
  const TextPlace* places = kBuiltIn.places.data();
  const mqChar* units = kBuiltIn.units.data();
  Overlay* overlay = nullptr;
};

constinit TextsInUse inUse;
constinit std::atomic<int> missingIds = 0;

void Use(std::unique_ptr<Overlay> overlay) noexcept {
  delete inUse.overlay;
  Overlay* const kept = overlay.release();
  inUse = {kept->Places(), kept->Units(), kept};
}

std::optional<PaddedText> FindText(UINT id) noexcept {
  const UINT slot = id - kFirstId;
  if (slot >= kIdCount) {
    return inUse.overlay == nullptr ? std::nullopt : inUse.overlay->FindOther(id);
  }
  const TextPlace place = inUse.places[slot];
  return HoldsText(place) ? std::optional(PaddedText{inUse.units + place.offset, place.length})
                          : std::nullopt;
}

}  // namespace

std::optional<mqTextView> FindBuiltInText(UINT id) noexcept {
  const UINT slot = id - kFirstId;
  if (slot >= kIdCount || !HoldsText(kBuiltIn.places[slot])) {
    return std::nullopt;
  }
  const TextPlace place = kBuiltIn.places[slot];
  return mqTextView(kBuiltIn.units.data() + place.offset, place.length);
}

void UseTranslations(std::span<const Translation> translations) {
  auto overlay = std::make_unique<Overlay>();
  for (const Translation& translation : translations) {
    overlay->Replace(translation.id, translation.text);
  }
  Use(std::move(overlay));
}

std::vector<StringTableEntry> BuiltInTexts() {
  std::vector<StringTableEntry> entries;
  for (UINT id = kFirstId; id < kFirstId + kIdCount; ++id) {
    if (const std::optional<mqTextView> text = FindBuiltInText(id)) {
      entries.push_back({id, *text});
    }
  }
  return entries;
}

void ReplaceText(UINT id, const CString& text) {
  auto overlay = inUse.overlay == nullptr ? std::make_unique<Overlay>()
                                          : std::make_unique<Overlay>(*inUse.overlay);
  overlay->Replace(id, text.View());
  Use(std::move(overlay));
}

void UseBuiltInTexts() {
  delete inUse.overlay;
  inUse = {};
}

int CountMissingIds() noexcept {
  return missingIds.load(std::memory_order_relaxed);
}

}  // namespace mqp::host

int mqpLoadString(CString& text, UINT id) {
  const std::optional<mqp::PaddedText> found = mqp::host::FindText(id);
  if (!found) {
    text.Empty();
    mqp::host::missingIds.fetch_add(1, std::memory_order_relaxed);
    return 0;
  }
  text = *found;
  return 1;
}
