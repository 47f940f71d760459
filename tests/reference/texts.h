#pragma once

#include <cstdint>

#include "random.h"
#include "values.h"

/// The display texts as the references know them. The host's table is made to hold the same, so
/// that a comparison of names compares which id was asked for.
namespace reference {

/// Each id has a text of its own, told apart by the id inside it, with a colon in most of them.
void UseTextsById();

/// Texts that begin alike, hold several colons and blanks, begin with one, or are empty: what the
/// prefix rules of the lookup and the cut of the colour-bar names are about.
void UseCollidingTexts(Random& random);

/// The text of an id, or empty for 0.
Text Load(int id);

}  // namespace reference
