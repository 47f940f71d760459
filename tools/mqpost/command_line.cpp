#include "command_line.h"

#include <ostream>

#include <CLI/CLI.hpp>

#include "text.h"

namespace mqp::tool {
namespace {

/// What is wrong with the first argument that has no place.
std::string DescribeExtra(const CLI::App& app, const std::string& extra) {
  if (!extra.starts_with("-") || extra == "-") {
    return "There is one argument too many: " + Quoted(extra) + ".";
  }
  std::vector<std::string> options;
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& name : option->get_lnames()) {
      options.push_back("--" + name);
    }
  }
  return "There is no option " + Printable(extra) + "." + AskWhether(FindNearest(extra, options));
}

int ReadInteger(const std::string& name, const std::string& word) {
  const std::optional<int> value = ParseInteger(word);
  if (!value) {
    throw Problem(ExitCode::Usage,
                  name + " takes a whole number of 32 bits, not " + Quoted(word) + ".");
  }
  return *value;
}

}  // namespace

CommandLine::CommandLine(Session& session, const std::string& verb, const std::string& description,
                         const std::string& example)
    : m_session(session),
      m_verb(verb),
      m_app(std::make_unique<CLI::App>(description, "mqpost " + verb)) {
  // A slash begins a path on every platform.
  m_app->allow_windows_style_options(false);
  m_app->get_formatter()->column_width(28);
  m_app->get_formatter()->label("REQUIRED", "");
  m_app->footer("Example:\n  " + example + "\n\nExit codes: mqpost --help");
}

CommandLine::~CommandLine() = default;

void CommandLine::Positional(const std::string& name, std::string& target,
                             const std::string& help) {
  m_app->add_option(name, target, help)->required()->type_name("");
}

void CommandLine::OptionalPositional(const std::string& name, std::optional<std::string>& target,
                                     const std::string& help) {
  Text(name, target, help, "");
}

void CommandLine::Positionals(const std::string& name, std::vector<std::string>& target,
                              const std::string& help) {
  m_app->add_option(name, target, help)->type_name("");
}

void CommandLine::Text(const std::string& name, std::optional<std::string>& target,
                       const std::string& help, const std::string& placeholder) {
  m_app
      ->add_option_function<std::string>(
          name, [&target](const std::string& word) { target = word; }, help)
      ->type_name(placeholder);
}

void CommandLine::Integer(const std::string& name, std::optional<int>& target,
                          const std::string& help) {
  m_app
      ->add_option_function<std::string>(
          name, [&target, name](const std::string& word) { target = ReadInteger(name, word); },
          help)
      ->type_name("N");
}

void CommandLine::Integer(const std::string& name, int& target, const std::string& help) {
  m_app
      ->add_option_function<std::string>(
          name, [&target, name](const std::string& word) { target = ReadInteger(name, word); },
          help)
      ->type_name("N");
}

void CommandLine::OneOf(const std::string& name, int& target, std::vector<Choice> choices,
                        const std::string& what, const std::string& help) {
  m_app
      ->add_option_function<std::string>(
          name,
          [&target, choices = std::move(choices), what](const std::string& word) {
            target = ParseChoice(word, choices, what);
          },
          help)
      ->type_name("NAME");
}

void CommandLine::Texts(const std::string& name, std::vector<std::string>& target,
                        const std::string& help, const std::string& placeholder) {
  m_app->add_option(name, target, help)->allow_extra_args(false)->type_name(placeholder);
}

void CommandLine::Flag(const std::string& name, bool& target, const std::string& help) {
  m_app->add_flag(name, target, help);
}

void CommandLine::Flag(const std::string& name, int& target, const std::string& help) {
  m_app->add_flag_callback(name, [&target] { target = 1; }, help);
}

bool CommandLine::Parse() {
  const std::vector<std::string>& arguments = m_session.arguments;
  try {
    m_app->parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    return true;
  } catch (const CLI::CallForHelp&) {
    m_session.out << m_app->help();
    return false;
  } catch (const CLI::ParseError& error) {
    const std::vector<std::string> extras = m_app->remaining();
    const std::string what =
        extras.empty() ? std::string(error.what()) + "." : DescribeExtra(*m_app, extras.front());
    throw Problem(ExitCode::Usage, what + " See mqpost " + m_verb + " --help.");
  }
}

}  // namespace mqp::tool
