# Completion of calvoro for bash.
# Made by packaging/pages/make.py from what the program says of itself.

_calvoro() {
  mapfile -t COMPREPLY < <(compgen -W '-h --help -V --version -display -geometry -icon -name -platform -platformpluginpath -platformtheme -plugin -qwindowgeometry -qwindowicon -qwindowtitle -session -style -stylesheet -title -nograb -reverse -sync' -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -F _calvoro calvoro
