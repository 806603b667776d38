// SPDX-License-Identifier: MIT
#include "cli/verbs/completion.h"

#include <algorithm>
#include <functional>

namespace tarnwick {
namespace {

bool isByPlace(const VerbOption& option) { return !option.name.starts_with('-'); }
bool takesValue(const VerbOption& option) { return !std::holds_alternative<bool*>(option.target); }
bool takesFile(const VerbOption& option) {
  return option.type == "FILE" || option.name == "FILE" || option.name.ends_with("-file");
}
bool takesMany(const VerbOption& option) {
  return std::holds_alternative<std::vector<std::string>*>(option.target) ||
         std::holds_alternative<std::vector<std::int16_t>*>(option.target) ||
         std::holds_alternative<std::vector<std::int64_t>*>(option.target);
}

template <typename Texts>
std::string joined(const Texts& texts) {
  std::string all;
  for (const std::string& text : texts) {
    all += (all.empty() ? "" : " ") + text;
  }
  return all;
}

std::string replaced(std::string text, char what, const std::string& by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, 1, by);
  }
  return text;
}

/// The options that have a name, and what every verb takes.
std::vector<std::string> optionNames(const Verb& verb) {
  std::vector<std::string> names;
  for (const VerbOption& option : verb.options) {
    if (!isByPlace(option)) {
      names.push_back(option.name);
    }
  }
  names.insert(names.end(), {"--folder", "--help"});
  return names;
}

/// The words that can stand at some place behind the verb.
std::vector<std::string> wordsByPlace(const Verb& verb) {
  std::vector<std::string> words;
  for (const VerbOption& option : verb.options) {
    if (isByPlace(option)) {
      words.insert(words.end(), option.oneOf.begin(), option.oneOf.end());
    }
  }
  return words;
}

bool takesFileByPlace(const Verb& verb) {
  return std::ranges::any_of(verb.options,
                             [](const VerbOption& option) { return isByPlace(option) && takesFile(option); });
}

std::vector<std::string> namesOf(const std::vector<Verb>& verbs) {
  std::vector<std::string> names;
  std::ranges::transform(verbs, std::back_inserter(names), &Verb::name);
  return names;
}

/// Between single quotes, as zsh's specifications want their texts.
std::string zshText(const std::string& text) {
  std::string plain = replaced(replaced(text, '\'', "'\\''"), '[', "\\[");
  return replaced(replaced(std::move(plain), ']', "\\]"), ':', "\\:");
}

std::string zshValue(const VerbOption& option) {
  const std::string what = ":" + (option.type.empty() ? "value" : zshText(option.type)) + ":";
  return !option.oneOf.empty() ? what + "(" + joined(option.oneOf) + ")" : what + (takesFile(option) ? "_files" : " ");
}

std::string zshArgument(const VerbOption& option) {
  if (isByPlace(option)) {
    return (takesMany(option) ? "'*" : "'") + zshValue(option) + "'";
  }
  return "'" + std::string(takesMany(option) ? "*" : "") + option.name + "[" + zshText(option.meaning) + "]" +
         (takesValue(option) ? zshValue(option) : "") + "'";
}

std::string fishText(const std::string& text) {
  return "'" + replaced(replaced(text, '\\', "\\\\"), '\'', "\\'") + "'";
}

}  // namespace

std::string bashCompletion(const std::vector<Verb>& verbs) {
  std::string script =
      "# Completion of tarnwickctl for bash; printed by: tarnwickctl completion bash\n"
      "_tarnwickctl() {\n"
      "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb='' words='' files='' i\n"
      "  for ((i = 1; i < COMP_CWORD; i++)); do\n"
      "    case ${COMP_WORDS[i]} in\n"
      "      --folder) ((i++)) ;;\n"
      "      -*) ;;\n"
      "      *)\n"
      "        verb=${COMP_WORDS[i]}\n"
      "        break\n"
      "        ;;\n"
      "    esac\n"
      "  done\n"
      "  case \"$verb $before\" in\n"
      "    *' --folder')\n"
      "      compopt -o filenames\n"
      "      mapfile -t COMPREPLY < <(compgen -d -- \"$word\")\n"
      "      return\n"
      "      ;;\n";
  for (const Verb& verb : verbs) {
    for (const VerbOption& option : verb.options) {
      if (!isByPlace(option) && takesValue(option)) {
        script += "    '" + verb.name + " " + option.name + "') " +
                  (takesFile(option) ? "files=yes" : "words='" + joined(option.oneOf) + "'") + " ;;\n";
      }
    }
  }
  script += "    ' '*) words='" + joined(namesOf(verbs)) + " --folder --help --version' ;;\n";
  for (const Verb& verb : verbs) {
    const std::vector<std::string> places = wordsByPlace(verb);
    script += "    '" + verb.name + " '*) words='" + joined(optionNames(verb)) +
              (places.empty() ? "" : " " + joined(places)) + "'" + (takesFileByPlace(verb) ? " files=yes" : "") +
              " ;;\n";
  }
  return script +
         "  esac\n"
         "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\")\n"
         "  if [[ -n $files && $word != -* ]]; then\n"
         "    compopt -o filenames\n"
         "    mapfile -t -O \"${#COMPREPLY[@]}\" COMPREPLY < <(compgen -f -- \"$word\")\n"
         "  fi\n"
         "}\n"
         "complete -F _tarnwickctl tarnwickctl";
}

std::string zshCompletion(const std::vector<Verb>& verbs) {
  std::string script =
      "#compdef tarnwickctl\n"
      "# Completion of tarnwickctl for zsh; printed by: tarnwickctl completion zsh\n"
      "_tarnwickctl() {\n"
      "  local context state line\n"
      "  local -a verbs\n"
      "  verbs=(\n";
  for (const Verb& verb : verbs) {
    script += "    '" + verb.name + ":" + replaced(verb.summary, '\'', "'\\''") + "'\n";
  }
  script +=
      "  )\n"
      "  _arguments -C '--folder[The program folder]:folder:_directories' '(- *)--help[Print the help]' \\\n"
      "    '(- *)--version[Print the version]' '1: :->verb' '*:: :->rest'\n"
      "  if [[ $state == verb ]]; then\n"
      "    _describe verb verbs\n"
      "    return\n"
      "  fi\n"
      "  case $words[1] in\n";
  for (const Verb& verb : verbs) {
    script += "    " + verb.name + ")\n      _arguments";
    for (const VerbOption& option : verb.options) {
      script += " \\\n        " + zshArgument(option);
    }
    script += " \\\n        '--folder[The program folder]:folder:_directories' '--help[Print the help]'\n      ;;\n";
  }
  return script +
         "  esac\n"
         "}\n"
         "_tarnwickctl \"$@\"";
}

std::string fishCompletion(const std::vector<Verb>& verbs) {
  std::string script =
      "# Completion of tarnwickctl for fish; printed by: tarnwickctl completion fish\n"
      "complete -c tarnwickctl -f\n"
      "complete -c tarnwickctl -l folder -r -a '(__fish_complete_directories)' -d 'The program folder'\n"
      "complete -c tarnwickctl -l help -d 'Print the help'\n"
      "complete -c tarnwickctl -n __fish_use_subcommand -l version -d 'Print the version'\n";
  for (const Verb& verb : verbs) {
    script +=
        "complete -c tarnwickctl -n __fish_use_subcommand -a " + verb.name + " -d " + fishText(verb.summary) + "\n";
    const std::string behind = "complete -c tarnwickctl -n '__fish_seen_subcommand_from " + verb.name + "' ";
    for (const VerbOption& option : verb.options) {
      if (isByPlace(option)) {
        script += option.oneOf.empty() ? "" : behind + "-a '" + joined(option.oneOf) + "'\n";
        continue;
      }
      const std::string value = !takesValue(option)     ? ""
                                : !option.oneOf.empty() ? " -x -a '" + joined(option.oneOf) + "'"
                                : takesFile(option)     ? " -r -F"
                                                        : " -x";
      script += behind;
      script.append("-l ").append(option.name, 2).append(value).append(" -d ").append(fishText(option.meaning)) += '\n';
    }
    script += takesFileByPlace(verb) ? behind + "-F\n" : "";
  }
  script.pop_back();
  return script;
}

}  // namespace tarnwick
