// What the library that runs mutants offers to a program that works in pieces; absent when it is
// not preloaded.
#pragma once

extern "C" {

/// From here on the reads of the tables are seen.
[[gnu::weak, gnu::visibility("default")]] void MqPieceBegins() noexcept;

/// Tries every mutant of what was read since the piece began.
/// \param isDifferent does the piece again: non-zero when it comes out otherwise than without a
///                    mutant. May crash: that counts as a difference
/// \param piece       handed on to it
[[gnu::weak, gnu::visibility("default")]] void MqPieceEnds(int (*isDifferent)(void* piece),
                                                           void* piece) noexcept;

/// Behind the last piece.
[[gnu::weak, gnu::visibility("default")]] void MqPiecesEnd() noexcept;
}
