#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace orb::model {

/// A command cannot go on: its text is written for the user and says what was found where.
/// No function of the core catches it; the situation is as it was before the command.
class FatalError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An index outside the bounds of a table, or a name that must be known and is not.
class IndexOutOfRange : public FatalError {
 public:
  using FatalError::FatalError;
};

/// A file that cannot be read or written, or that does not hold what it should.
class FileError : public FatalError {
 public:
  using FatalError::FatalError;
};

/// A file that was not replaced because somebody else has changed it since it was read.
class FileChangedError : public FileError {
 public:
  using FileError::FileError;
};

/// What is told to the user about an exception, as a sentence: also about those that are not meant
/// for users, which no command may let end the program.
std::string SentenceOf(const std::exception& problem);

}  // namespace orb::model
