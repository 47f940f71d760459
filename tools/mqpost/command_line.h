/// \file
/// The arguments of one verb. The library that parses them is known here alone.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "choices.h"
#include "session.h"

namespace CLI {
class App;
}

namespace mqp::tool {

/// Every target is owned by the caller and is set by `Parse`, if the argument is given.
class CommandLine {
 public:
  /// \param example a command line that works, and what it does
  CommandLine(Session& session, const std::string& verb, const std::string& description,
              const std::string& example);
  ~CommandLine();
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  void Positional(const std::string& name, std::string& target, const std::string& help);
  void OptionalPositional(const std::string& name, std::optional<std::string>& target,
                          const std::string& help);
  void Positionals(const std::string& name, std::vector<std::string>& target,
                   const std::string& help);
  void Text(const std::string& name, std::optional<std::string>& target, const std::string& help,
            const std::string& placeholder);
  void Integer(const std::string& name, std::optional<int>& target, const std::string& help);
  void Integer(const std::string& name, int& target, const std::string& help);
  /// One of the names, or any integer; an error calls it `what`.
  void OneOf(const std::string& name, int& target, std::vector<Choice> choices,
             const std::string& what, const std::string& help);
  /// May be given several times, with one value each.
  void Texts(const std::string& name, std::vector<std::string>& target, const std::string& help,
             const std::string& placeholder);
  void Flag(const std::string& name, bool& target, const std::string& help);
  void Flag(const std::string& name, int& target, const std::string& help);  ///< 1 when given

  /// \return false when help was asked for and has been printed
  /// \throw Problem `Usage`
  [[nodiscard]] bool Parse();

 private:
  Session& m_session;
  std::string m_verb;
  std::unique_ptr<CLI::App> m_app;
};

}  // namespace mqp::tool
