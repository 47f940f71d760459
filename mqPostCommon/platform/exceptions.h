/// \file
/// The exceptions of the host's framework that this library raises.
#pragma once

#include <stdexcept>

/// Raised for an index outside a list. Carries the framework's name and derives from the
/// matching standard exception, so that a caller can catch either.
class CInvalidArgException : public std::invalid_argument {
 public:
  CInvalidArgException() : std::invalid_argument("invalid argument") {}
  using std::invalid_argument::invalid_argument;
};
