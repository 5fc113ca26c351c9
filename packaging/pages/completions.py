"""Completion of the command lines by bash, zsh and fish."""

from help import notations, toolkit_options, values_of

MADE = "# Made by packaging/pages/make.py from what the program says of itself.\n"


def in_single_quotes(text):
    return "'" + text.replace("'", "'\\''") + "'"


def bash(whole, commands):
    tags = [tag for tag, _, _ in notations(whole)]
    rows = []
    for command in commands:
        flags = []
        for option in command.options():
            flags += option.names
            words, several = values_of(option, tags)
            if words == "FILE":
                rows.append(f"    {command.name}:{option.names[0]}) files=yes ;;")
            elif words:
                rows.append(f"    {command.name}:{option.names[0]}) values={in_single_quotes(' '.join(words))}"
                            + (" several=yes" if several else "") + " ;;")
            elif option.value:
                rows.append(f"    {command.name}:{option.names[0]}) return ;;")
        rows.append(f"    {command.name}:*) options={in_single_quotes(' '.join(flags))} ;;")
    names = " ".join([command.name for command in commands] + ["help"])
    return MADE.replace("#", "# Completion of calvoro-cli for bash.", 1).replace("bash.", "bash.\n#", 1) + f"""
_calvoro_cli() {{
  local current=${{COMP_WORDS[COMP_CWORD]}} previous=${{COMP_WORDS[COMP_CWORD - 1]}} command=${{COMP_WORDS[1]:-}}
  local options='' values='' several='' files='' kept=''
  COMPREPLY=()
  # "--from=CE" comes as three words.
  if [[ $current == "=" ]]; then
    current=''
  elif [[ $previous == "=" ]]; then
    previous=${{COMP_WORDS[COMP_CWORD - 2]}}
  fi
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W '{names} -h --help --version' -- "$current")
    return
  fi
  if [[ $command == help ]]; then
    mapfile -t COMPREPLY < <(compgen -W '{names}' -- "$current")
    return
  fi
  case $command:$previous in
""" + "\n".join(rows) + """
  esac
  if [[ $files ]]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
    compopt -o filenames 2>/dev/null
  elif [[ $values ]]; then
    if [[ $several && $current == *,* ]]; then
      kept=${current%,*},
      current=${current##*,}
    fi
    mapfile -t COMPREPLY < <(compgen -P "$kept" -W "$values" -- "$current")
  elif [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
  fi
}
complete -F _calvoro_cli calvoro-cli
"""


def bash_window():
    names = ["-h", "--help", "-V", "--version"] + ["-" + name for name, _ in toolkit_options()]
    return MADE.replace("#", "# Completion of calvoro for bash.\n#", 1) + f"""
_calvoro() {{
  mapfile -t COMPREPLY < <(compgen -W '{' '.join(names)}' -- "${{COMP_WORDS[COMP_CWORD]}}")
}}
complete -F _calvoro calvoro
"""


def zsh_text(text):
    for character in "\\[]:":
        text = text.replace(character, "\\" + character)
    return text


def zsh_values(option, tags):
    words, several = values_of(option, tags)
    if not option.value:
        return ""
    label = zsh_text(option.value)
    if words == "FILE":
        return f":{label}:_files"
    if several:
        return f":{label}:_sequence compadd - {' '.join(words)}"
    return f":{label}:({' '.join(words)})" if words else f":{label}:"


def zsh(whole, commands):
    tags = [tag for tag, _, _ in notations(whole)]
    cases = []
    for command in commands:
        rows = [f"    {command.name})", "      _arguments -s -S \\"]
        for option in command.options():
            for name in option.names:
                others = " ".join(option.names)
                rows.append("        " + in_single_quotes(
                    (f"({others})" if len(option.names) > 1 else "")
                    + f"{name}[{zsh_text(option.text)}]{zsh_values(option, tags)}") + " \\")
        rows += ["        '*: :'", "      ;;"]
        cases += rows
    described = "\n".join("    " + in_single_quotes(f"{command.name}:{zsh_text(command.summary)}") for command in commands)
    return "#compdef calvoro-cli\n" + MADE + f"""
_calvoro_cli() {{
  local -a commands=(
{described}
    'help:The help of a command.'
  )
  if ((CURRENT == 2)); then
    _describe command commands
    _arguments '(-h --help)-h[this help]' '(-h --help)--help[this help]' '--version[the version]'
    return
  fi
  local command=$words[2]
  shift words
  ((CURRENT--))
  case $command in
    help) _describe command commands ;;
""" + "\n".join(cases) + """
  esac
}
_calvoro_cli "$@"
"""


def zsh_window():
    rows = ["  '(-h --help)-h[print a short help]' \\", "  '(-h --help)--help[print a short help]' \\",
            "  '(-V --version)-V[print the version]' \\", "  '(-V --version)--version[print the version]' \\"]
    rows += [f"  '-{name}[an option of the toolkit]{':value:' if takes else ''}' \\" for name, takes in toolkit_options()]
    rows[-1] = rows[-1].removesuffix(" \\")
    return "#compdef calvoro\n" + MADE + "\n_arguments \\\n" + "\n".join(rows) + "\n"


def fish_option(name):
    return f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}"


def fish_text(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


def fish(whole, commands):
    tags = [tag for tag, _, _ in notations(whole)]
    names = " ".join([command.name for command in commands] + ["help"])
    rows = ["complete -c calvoro-cli -f",
            "complete -c calvoro-cli -n __fish_use_subcommand -s h -l help -d 'this help'",
            "complete -c calvoro-cli -n __fish_use_subcommand -l version -d 'the version'",
            "complete -c calvoro-cli -n __fish_use_subcommand -a help -d 'The help of a command.'",
            f"complete -c calvoro-cli -n '__fish_seen_subcommand_from help' -a {fish_text(names)}"]
    for command in commands:
        rows.append(f"complete -c calvoro-cli -n __fish_use_subcommand -a {command.name} -d {fish_text(command.summary)}")
        for option in command.options():
            words, several = values_of(option, tags)
            row = (f"complete -c calvoro-cli -n '__fish_seen_subcommand_from {command.name}' "
                   + " ".join(fish_option(name) for name in option.names))
            if words == "FILE":
                row += " -r -F"
            elif several:
                row += f" -x -a {fish_text('(__calvoro_cli_several ' + ' '.join(words) + ')')}"
            elif words:
                row += f" -x -a {fish_text(' '.join(words))}"
            elif option.value:
                row += " -x"
            rows.append(row + f" -d {fish_text(option.text)}")
    return MADE.replace("#", "# Completion of calvoro-cli for fish.\n#", 1) + r"""
# Each word behind what stands before the last comma.
function __calvoro_cli_several
    set -l kept (commandline -ct | string replace -r '[^,=]*$' '' | string replace -r '^--to=' '')
    printf '%s\n' $kept$argv
end

""" + "\n".join(rows) + "\n"


def fish_window():
    rows = ["complete -c calvoro -f", "complete -c calvoro -s h -l help -d 'print a short help'",
            "complete -c calvoro -s V -l version -d 'print the version'"]
    rows += [f"complete -c calvoro -o {name}{' -x' if takes else ''} -d 'an option of the toolkit'"
             for name, takes in toolkit_options()]
    return MADE.replace("#", "# Completion of calvoro for fish.\n#", 1) + "\n" + "\n".join(rows) + "\n"


def completions(whole, commands):
    """Text by path, relative to packaging/."""
    return {
        "completions/calvoro-cli.bash": bash(whole, commands),
        "completions/calvoro.bash": bash_window(),
        "completions/_calvoro-cli": zsh(whole, commands),
        "completions/_calvoro": zsh_window(),
        "completions/calvoro-cli.fish": fish(whole, commands),
        "completions/calvoro.fish": fish_window(),
    }
