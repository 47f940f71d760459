/// \file
/// The kinds of records under one interface: what each looks like byte by byte, how a log of its
/// reading is to be understood, and objects to write it from and to read it into.
#pragma once

#include <algorithm>
#include <climits>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/wide_string.h>

#include "faults/faulty_stream.h"
#include "params/record_test_support.h"

namespace mqp::test {

/// A text as long as a record can hold.
inline CString LongestText(mqChar unit) {
  return CString(unit, 1024);
}

struct TextKind {
  using Object = CString;
  using State = CString;

  /// Texts have no versions of their own.
  static inline const std::vector<int> kGates = {};
  static constexpr int kFirstVersion = INT_MIN;
  static constexpr int kNewestVersion = 0;

  static std::vector<State> Stored() {
    return {CString(MQ_TEXT("a\u03A9\u4E2D and what follows")), CString()};
  }
  static std::vector<State> Held() { return {CString(), CString(MQ_TEXT("held text \u00C4"))}; }
  static State Long() { return LongestText(MQ_TEXT('t')); }

  static ByteString Bytes(const State& state, int /*version*/) {
    return RecordBytes().Text(state.View()).Get();
  }
  static void Give(Object& object, const State& state) { object = state; }
  static int Read(Object& object, IStream* stream, int /*version*/) {
    return CStringReadFromStream(stream, &object);
  }
  static int Write(Object& object, IStream* stream) {
    return CStringWriteToStream(stream, &object);
  }
  static int Expect(State& state, int /*version*/, LoggedFields& log) {
    return log.Read(state) ? 1 : 0;
  }
  static std::string Differences(const Object& got, const State& expected) {
    return MemberDifference("text", got, expected);
  }
};

struct VariableKind {
  using Object = CmqEquationVariable;
  using State = VariableState;

  static inline const std::vector<int> kGates = {890109};
  static constexpr int kFirstVersion = 890109;
  static constexpr int kNewestVersion = 890109;

  static std::vector<State> Stored() { return {FilledVariable(1), {CString(), -1, -1, -0.0}}; }
  static std::vector<State> Held() { return {VariableState(), FilledVariable(2)}; }
  static State Long() { return {LongestText(MQ_TEXT('n')), 1, 2, 3.0}; }

  static ByteString Bytes(const State& state, int /*version*/) { return BuildRecord(state); }
  static void Give(Object& object, const State& state) { SetState(object, state); }
  static int Read(Object& object, IStream* stream, int version) {
    return object.ReadFromStream(stream, version);
  }
  static int Write(Object& object, IStream* stream) {
    return object.WriteToStream(stream, kNewestVersion);
  }
  static int Expect(State& state, int version, LoggedFields& log) {
    if (version < kFirstVersion) {
      return 0;
    }
    log.Read(state.name);
    log.Read(state.resultType);
    log.Read(state.component);
    log.Read(state.coefficient);
    return 1;
  }
  static std::string Differences(const Object& got, const State& expected) {
    return test::Differences(got, expected);
  }
};

struct PlotKind {
  using Object = CmqEquationPlotParam;
  using State = EquationState;

  static inline const std::vector<int> kGates = {890109};
  static constexpr int kFirstVersion = 890109;
  static constexpr int kNewestVersion = 890109;

  static std::vector<State> Stored() { return {FilledEquation(1, 2), EquationState()}; }
  static std::vector<State> Held() { return {EquationState(), FilledEquation(2, 1)}; }
  static State Long() {
    State state = FilledEquation(3, 90);
    state.equation = LongestText(MQ_TEXT('e'));
    state.host3[1] = LongestText(MQ_TEXT('h'));
    state.variables[7].name = LongestText(MQ_TEXT('n'));
    return state;
  }

  static ByteString Bytes(const State& state, int /*version*/) { return BuildRecord(state); }
  static void Give(Object& object, const State& state) { SetState(object, state); }
  static int Read(Object& object, IStream* stream, int version) {
    return object.ReadFromStream(stream, version);
  }
  static int Write(Object& object, IStream* stream) {
    return object.WriteToStream(stream, kNewestVersion);
  }
  static int Expect(State& state, int version, LoggedFields& log) {
    if (version < kFirstVersion) {
      return 0;
    }
    log.Read(state.equation);
    log.Read(state.coefficientsFlag);
    log.Read(state.host3[0]);
    log.Read(state.host3[1]);
    const int count = std::min(log.ReadCount(), 65536);
    for (int place = 0; place < count; ++place) {
      VariableKind::Expect(state.variables.emplace_back(), version, log);
    }
    return 1;
  }
  static std::string Differences(const Object& got, const State& expected) {
    return HasVariables(got, expected.variables) && HasFields(got, expected)
               ? std::string()
               : test::Differences(got, expected);
  }

 private:
  static bool HasFields(const Object& got, const State& expected) {
    return got.m_strEquation == expected.equation &&
           got.m_nCoefficientsFlag == expected.coefficientsFlag &&
           got.m_strHost3[0] == expected.host3[0] && got.m_strHost3[1] == expected.host3[1] &&
           got.m_strDisplayEquation == expected.displayEquation;
  }
  /// Without copies: damaged counts make tens of thousands.
  static bool HasVariables(const Object& got, const std::vector<VariableState>& expected) {
    if (got.m_listVariables.GetCount() != static_cast<int>(expected.size())) {
      return false;
    }
    POSITION position = got.m_listVariables.GetHeadPosition();
    return std::ranges::all_of(expected, [&](const VariableState& state) {
      const CmqEquationVariable& variable = *got.m_listVariables.GetNext(position);
      return variable.m_strName == state.name && variable.m_nResultType == state.resultType &&
             variable.m_nComponent == state.component &&
             IsSame(variable.m_dCoefficient, state.coefficient);
    });
  }
};

struct GraphKind {
  using Object = CmqPostGraphParam;
  using State = CmqPostGraphParam;

  static inline const std::vector<int> kGates = {800018, 800026, 800062, 820022, 840028,
                                                 870002, 890002, 890005, 890109, 890110};
  static constexpr int kFirstVersion = 800018;
  static constexpr int kNewestVersion = 890110;

  /// Short texts keep the records short. The second and the third are brought up to date when they
  /// are read.
  static std::vector<State> Stored() {
    State plain = FilledGraph(1);
    for (CString* text : Texts(plain)) {
      *text = MQ_TEXT("a\u03A9\u4E2D");
    }
    plain.m_strHost18[1].Empty();
    return {plain, WithReaction(plain), WithStresses(plain)};
  }
  static std::vector<State> Held() {
    return {State(), FilledGraph(2), WithReaction(FilledGraph(3)), WithStresses(FilledGraph(4))};
  }
  static State Long() {
    State state = FilledGraph(5);
    for (CString* text : Texts(state)) {
      *text = LongestText(MQ_TEXT('g'));
    }
    return state;
  }

  static ByteString Bytes(const State& state, int version) {
    return BuildRecord(state, version < kFirstVersion ? kNewestVersion : version);
  }
  static void Give(Object& object, const State& state) { object = state; }
  static int Read(Object& object, IStream* stream, int version) {
    return object.ReadFromStream(stream, version);
  }
  static int Write(Object& object, IStream* stream) { return object.WriteToStream(stream); }
  static int Expect(State& state, int version, LoggedFields& log) {
    if (version < kFirstVersion) {
      return 0;
    }
    for (const auto& slot : RecordSlots(state)) {
      if (version >= slot.since) {
        std::visit([&log](auto* value) { log.Read(*value); }, slot.value);
      }
    }
    if (version >= 820022) {
      CorrectYUnitFlag(state);
    }
    if (version < 890002) {
      CorrectStressComponent(state.m_XAxis);
      CorrectStressComponent(state.m_YAxis);
    }
    return 1;
  }
  static std::string Differences(const Object& got, const State& expected) {
    return test::Differences(got, expected);
  }

 private:
  static std::vector<CString*> Texts(State& state) {
    return {&state.m_strHost18[0], &state.m_strHost18[1], &state.m_strHost18[2],
            &state.m_strHost20};
  }
  static State WithReaction(State state) {
    state.m_nAnalysisType = 8;
    state.m_nResultType = 1;
    state.m_YAxis = {1, 4, 0, -1};
    state.m_nYUnitFlag = 0;
    return state;
  }
  static State WithStresses(State state) {
    state.m_XAxis = {2, 11, 0, 7};
    state.m_YAxis = {2, 300, 0, -1};
    return state;
  }
};

}  // namespace mqp::test
