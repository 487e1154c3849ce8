#include "amortix2/cli/completions.h"

#include <sstream>
#include <string_view>
#include <vector>

#include "amortix2/cli/command_line.h"
#include "amortix2/cli/reference.h"

namespace amortix2::cli {
namespace {

constexpr std::string_view kMade = "# Made by ./dev renew from the component's description; change that.\n";

/// A choice as one word that the command line takes: its title where that is one, else its name or value.
std::string ChoiceWord(const ChoiceInfo& choice) {
  if (choice.name.empty()) return std::string(choice.text);
  std::string title(choice.title);
  for (char& c : title) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return title.find_first_not_of("abcdefghijklmnopqrstuvwxyz-") == std::string::npos
             ? title
             : std::string(choice.name);
}

std::string ChoiceWords(const ParameterInfo& parameter) {
  std::string words;
  if (!parameter.choices) return words;
  for (const ChoiceInfo& choice : parameter.choices->choices) {
    words += (words.empty() ? "" : " ") + ChoiceWord(choice);
  }
  return words;
}

/// Within single quotes.
std::string Quoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::vector<ClassMember> Callable() {
  std::vector<ClassMember> members;
  for (const ClassMember& member : MembersInOrder()) {
    if (member.member->kind == MemberKind::Method) members.push_back(member);
  }
  return members;
}

/// The names that call a member: "loan|Calculator.SimpleLoanCalculator".
std::string NamesOf(const ClassMember& member, std::string_view separator) {
  std::string names(member.member->address);
  if (!names.empty()) names += separator;
  return names + FullName(member);
}

/// A shell function that prints the inputs of a member as lines "NAME=CHOICES", for bash and zsh.
std::string InputsFunction() {
  std::string text = "_amortix2_inputs() {\n  case $1 in\n";
  for (const ClassMember& member : Callable()) {
    std::string inputs;
    for (const ParameterInfo& parameter : member.member->parameters) {
      if (!parameter.IsInput()) continue;
      inputs.append(" ").append(Quoted(std::string(parameter.name) + "=" + ChoiceWords(parameter)));
    }
    if (inputs.empty()) continue;
    text += "    " + NamesOf(member, "|") + ") printf '%s\\n'" + inputs + " ;;\n";
  }
  return text + "  esac\n}\n";
}

std::string Targets() {
  std::string text;
  for (const ClassMember& member : Callable()) text += (text.empty() ? "" : " ") + NamesOf(member, " ");
  return text;
}

/// What list knows beside what can be called.
std::string Types() {
  std::string text;
  for (const ClassInfo* type : Classes()) text += " " + std::string(type->name);
  for (const RecordInfo* record : Records()) text += " " + std::string(record->name);
  for (const EnumerationInfo* enumeration : Enumerations()) text += " " + std::string(enumeration->name);
  return text;
}

/// The options of a command, as its help has them.
std::vector<std::string> OptionsOf(std::string_view command) {
  std::vector<std::string> options;
  std::istringstream help(HelpOf(std::string(command)));
  for (std::string line; std::getline(help, line);) {
    const std::size_t start = line.find("--");
    if (!line.starts_with("  -") || start > 5) continue;
    options.push_back(line.substr(start, line.find(' ', start) - start));
  }
  return options;
}

std::string OptionWords(std::string_view command) {
  std::string words;
  for (const std::string& option : OptionsOf(command)) words += (words.empty() ? "" : " ") + option;
  return words;
}

std::string CommandWords() {
  std::string words;
  for (const std::string_view command : kCommands) words.append(words.empty() ? "" : " ").append(command);
  return words;
}

std::string Words() {
  return "_amortix2_targets=" + Quoted(Targets()) + "\n_amortix2_types=" + Quoted(Types()) + "\n";
}

}  // namespace

std::string BashCompletion() {
  return std::string("# bash completion for amortix2\n") + std::string(kMade) + "\n" + Words() +
         InputsFunction() + R"(
_amortix2() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]} target=${COMP_WORDS[2]}
  local name='' line
  # A "=" is a word of its own here.
  if [[ $cur == = ]]; then name=$prev cur=''
  elif [[ $prev == = ]]; then name=${COMP_WORDS[COMP_CWORD-2]}
  fi
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    COMPREPLY=($(compgen -W ')" +
         CommandWords() + R"( --help --version' -- "$cur"))
  elif [[ $command == list ]]; then
    COMPREPLY=($(compgen -W "$_amortix2_targets $_amortix2_types --json" -- "$cur"))
  elif [[ $command == batch ]]; then
    COMPREPLY=($(compgen -W ')" +
         OptionWords("batch") + R"(' -- "$cur"))
  elif [[ $command == serve ]]; then
    COMPREPLY=($(compgen -W ')" +
         OptionWords("serve") + R"(' -- "$cur"))
  elif [[ $command == call || $command == rows ]] && ((COMP_CWORD == 2)) && [[ $cur != -* ]]; then
    COMPREPLY=($(compgen -W "$_amortix2_targets" -- "$cur"))
  elif [[ $prev == --out || $prev == --merge ]]; then
    COMPREPLY=($(compgen -f -- "$cur"))
  elif [[ $command == rows && $cur == -* ]]; then
    COMPREPLY=($(compgen -W ')" +
         OptionWords("rows") + R"(' -- "$cur"))
  elif [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W ')" +
         OptionWords("call") + R"(' -- "$cur"))
  else
    while IFS= read -r line; do
      if [[ -n $name ]]; then
        [[ ${line%%=*} == "$name" ]] && COMPREPLY=($(compgen -W "${line#*=}" -- "$cur"))
      elif [[ ${line%%=*}= == "$cur"* ]]; then
        COMPREPLY+=("${line%%=*}=")
      fi
    done < <(_amortix2_inputs "$target")
    [[ -z $name ]] && compopt -o nospace 2>/dev/null
  fi
  return 0
}
complete -F _amortix2 amortix2
)";
}

std::string ZshCompletion() {
  return std::string("#compdef amortix2\n") + std::string(kMade) + "\n" + Words() + InputsFunction() + R"(
_amortix2() {
  local line current=$words[CURRENT]
  if ((CURRENT == 2)); then
    compadd -- )" +
         CommandWords() + R"( --help --version
  elif [[ $words[2] == list ]]; then
    compadd -- ${=_amortix2_targets} ${=_amortix2_types} --json
  elif [[ $words[2] == batch ]]; then
    compadd -- )" +
         OptionWords("batch") + R"(
  elif [[ $words[2] == serve ]]; then
    compadd -- )" +
         OptionWords("serve") + R"(
  elif [[ $words[2] == rows && $current == -* ]]; then
    compadd -- )" +
         OptionWords("rows") + R"(
  elif ((CURRENT == 3)); then
    compadd -- ${=_amortix2_targets}
  elif [[ $current == -* ]]; then
    compadd -- )" +
         OptionWords("call") + R"(
  elif [[ $words[CURRENT-1] == --out || $words[CURRENT-1] == --merge ]]; then
    _files
  else
    _amortix2_inputs $words[3] | while IFS= read -r line; do
      if [[ $current == *=* ]]; then
        [[ ${line%%=*} == ${current%%=*} ]] && compadd -P "${current%%=*}=" -- ${=line#*=}
      else
        compadd -S '' -- "${line%%=*}="
      fi
    done
  fi
}
_amortix2 "$@"
)";
}

std::string FishCompletion() {
  std::string text = std::string("# fish completion for amortix2\n") + std::string(kMade) + R"(
complete -c amortix2 -f
complete -c amortix2 -n __fish_use_subcommand -a ')" +
                     CommandWords() + R"('
complete -c amortix2 -n '__fish_seen_subcommand_from list' -a ')" +
                     Types() + "'\n";
  for (const std::string_view command : kCommands) {
    for (const std::string& option : OptionsOf(command)) {
      text.append("complete -c amortix2 -n '__fish_seen_subcommand_from ").append(command);
      text.append("' -l ").append(option.substr(2)).append("\n");
    }
  }
  for (const ClassMember& member : Callable()) {
    const std::string names = NamesOf(member, " ");
    text.append("complete -c amortix2 -n '__fish_seen_subcommand_from list call rows; and not ")
        .append("__fish_seen_subcommand_from ")
        .append(names)
        .append("' -a '")
        .append(names)
        .append("' -d ")
        .append(Quoted(member.member->title))
        .append("\n");
    for (const ParameterInfo& parameter : member.member->parameters) {
      if (!parameter.IsInput()) continue;
      std::string words = std::string(parameter.name) + "=";
      if (parameter.choices) {
        words.clear();
        for (const ChoiceInfo& choice : parameter.choices->choices) {
          words += (words.empty() ? "" : " ") + std::string(parameter.name) + "=" + ChoiceWord(choice);
        }
      }
      text.append("complete -c amortix2 -n '__fish_seen_subcommand_from ").append(names).append("' -a ");
      text.append(Quoted(words)).append(" -d ").append(Quoted(parameter.title)).append("\n");
    }
  }
  return text;
}

}  // namespace amortix2::cli
