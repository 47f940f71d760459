#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <storage/memory_stream.h>
#include <mqPostCommon/platform/stream.h>

namespace mqp::host {
namespace {

std::vector<std::byte> Bytes(const std::string& text) {
  const auto* begin = reinterpret_cast<const std::byte*>(text.data());
  return {begin, begin + text.size()};
}

/// Reads with room for eight bytes and answers what arrived.
struct Reading {
  HRESULT result;
  ULONG count;
  std::string text;
};

Reading Read(IStream& stream, ULONG size) {
  std::array<char, 8> buffer{'#', '#', '#', '#', '#', '#', '#', '#'};
  ULONG count = 99;
  const HRESULT result = stream.Read(buffer.data(), size, &count);
  return {result, count, std::string(buffer.begin(), buffer.end())};
}

TEST(MemoryStream, DeliversAsManyBytesAsAreAskedFor) {
  MemoryStream stream(Bytes("abcdef"));
  const Reading reading = Read(stream, 4);
  EXPECT_EQ(reading.result, S_OK);
  EXPECT_EQ(reading.count, 4U);
  EXPECT_EQ(reading.text, "abcd####");
  EXPECT_EQ(stream.Position(), 4U);
}

TEST(MemoryStream, DeliversWhatIsLeftAndSaysThatItIsLess) {
  MemoryStream stream(Bytes("abcdef"));
  Read(stream, 4);
  const Reading rest = Read(stream, 4);
  EXPECT_EQ(rest.result, S_FALSE);
  EXPECT_EQ(rest.count, 2U);
  EXPECT_EQ(rest.text, "ef######");
  EXPECT_EQ(stream.Position(), 6U);
  const Reading nothing = Read(stream, 1);
  EXPECT_EQ(nothing.result, S_FALSE);
  EXPECT_EQ(nothing.count, 0U);
  EXPECT_EQ(nothing.text, "########");
  EXPECT_EQ(stream.Position(), 6U);
}

TEST(MemoryStream, ReadingTheLastByteIsNoShortRead) {
  MemoryStream stream(Bytes("ab"));
  EXPECT_EQ(Read(stream, 2).result, S_OK);
  EXPECT_EQ(Read(stream, 0).result, S_OK);
}

TEST(MemoryStream, TheCountMayBeNull) {
  MemoryStream stream(Bytes("abc"));
  char byte = 0;
  EXPECT_EQ(stream.Read(&byte, 1, nullptr), S_OK);
  EXPECT_EQ(byte, 'a');
  EXPECT_EQ(stream.Write("X", 1, nullptr), S_OK);
  EXPECT_EQ(stream.Bytes(), Bytes("aXc"));
}

TEST(MemoryStream, WritingOverwritesAndThenLengthens) {
  MemoryStream stream(Bytes("abc"));
  Read(stream, 2);
  ULONG count = 99;
  EXPECT_EQ(stream.Write("XYZ", 3, &count), S_OK);
  EXPECT_EQ(count, 3U);
  EXPECT_EQ(stream.Bytes(), Bytes("abXYZ"));
  EXPECT_EQ(stream.Position(), 5U);
}

TEST(MemoryStream, WhatWasWrittenIsReadAfterRewinding) {
  MemoryStream stream;
  stream.Write("abc", 3, nullptr);
  stream.Write("de", 2, nullptr);
  EXPECT_EQ(Read(stream, 5).count, 0U);
  stream.Rewind();
  EXPECT_EQ(stream.Position(), 0U);
  EXPECT_EQ(Read(stream, 5).text, "abcde###");
}

TEST(MemoryStream, ANullBufferTransfersNothing) {
  MemoryStream stream(Bytes("abc"));
  ULONG count = 99;
  EXPECT_EQ(stream.Read(nullptr, 1, &count), E_POINTER);
  EXPECT_EQ(count, 0U);
  count = 99;
  EXPECT_EQ(stream.Write(nullptr, 1, &count), E_POINTER);
  EXPECT_EQ(count, 0U);
  EXPECT_EQ(stream.Read(nullptr, 0, nullptr), S_OK);
  EXPECT_EQ(stream.Write(nullptr, 0, nullptr), S_OK);
  EXPECT_EQ(stream.Position(), 0U);
  EXPECT_EQ(stream.Bytes(), Bytes("abc"));
}

class StreamThatFails : public MemoryStream {
 public:
  HRESULT Write(const void*, ULONG, ULONG*) override { return E_FAIL; }
};

TEST(MemoryStream, ADerivedStreamFailsThroughTheInterface) {
  StreamThatFails stream;
  IStream& face = stream;
  EXPECT_EQ(face.Write("a", 1, nullptr), E_FAIL);
  EXPECT_TRUE(stream.Bytes().empty());
}

}  // namespace
}  // namespace mqp::host
