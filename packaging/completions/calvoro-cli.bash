# Completion of calvoro-cli for bash.
# Made by packaging/pages/make.py from what the program says of itself.

_calvoro_cli() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]:-}
  local options='' values='' several='' files='' kept=''
  COMPREPLY=()
  # "--from=CE" comes as three words.
  if [[ $current == "=" ]]; then
    current=''
  elif [[ $previous == "=" ]]; then
    previous=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W 'convert between add compute month today help -h --help --version' -- "$current")
    return
  fi
  if [[ $command == help ]]; then
    mapfile -t COMPREPLY < <(compgen -W 'convert between add compute month today help' -- "$current")
    return
  fi
  case $command:$previous in
    convert:--from) values='CE ISO JC ORD LPM LPW JDN auto' ;;
    convert:--to) values='CE ISO JC ORD LPM LPW JDN all' several=yes ;;
    convert:--input) files=yes ;;
    convert:--field) return ;;
    convert:--delimiter) return ;;
    convert:--date-format) values='YMD DMY MDY' ;;
    convert:--date-separator) values='- / .' ;;
    convert:--thousands-separator) values=', . none' ;;
    convert:--digit-grouping) values=', . none' ;;
    convert:*) options='-h --help --version --from --to --lenient --scan --input --tag --era --weekday --csv --field --delimiter --append --header --date-format --date-separator --thousands-separator --digit-grouping --no-hyphen' ;;
    between:--input) files=yes ;;
    between:--from) values='CE ISO JC ORD LPM LPW JDN auto' ;;
    between:--second-from) values='CE ISO JC ORD LPM LPW JDN auto' ;;
    between:--field) return ;;
    between:--delimiter) return ;;
    between:--date-format) values='YMD DMY MDY' ;;
    between:--date-separator) values='- / .' ;;
    between:--thousands-separator) values=', . none' ;;
    between:--digit-grouping) values=', . none' ;;
    between:*) options='-h --help --version --input --from --second-from --include-first-date --weekdays-only --breakdown --csv --field --delimiter --append --header --date-format --date-separator --thousands-separator --digit-grouping --no-hyphen' ;;
    add:--input) files=yes ;;
    add:--from) values='CE ISO JC ORD LPM LPW JDN auto' ;;
    add:--to) values='CE ISO JC ORD LPM LPW JDN all' several=yes ;;
    add:--unit) values='days months' ;;
    add:--field) return ;;
    add:--delimiter) return ;;
    add:--date-format) values='YMD DMY MDY' ;;
    add:--date-separator) values='- / .' ;;
    add:--thousands-separator) values=', . none' ;;
    add:--digit-grouping) values=', . none' ;;
    add:*) options='-h --help --version --input --from --to --unit --include-first-date --weekdays-only --tag --era --weekday --csv --field --delimiter --append --header --date-format --date-separator --thousands-separator --digit-grouping --no-hyphen' ;;
    compute:--first) return ;;
    compute:--difference) return ;;
    compute:--second) return ;;
    compute:--first-calendar) values='CE ISO JC ORD LPM LPW JDN' ;;
    compute:--second-calendar) values='CE ISO JC ORD LPM LPW JDN' ;;
    compute:--clear) values='first difference second cancel' ;;
    compute:--unit) values='days months' ;;
    compute:--language) values='en de es' ;;
    compute:--today) return ;;
    compute:--date-format) values='YMD DMY MDY' ;;
    compute:--date-separator) values='- / .' ;;
    compute:--thousands-separator) values=', . none' ;;
    compute:--digit-grouping) values=', . none' ;;
    compute:*) options='-h --help --version --first --difference --second --first-calendar --second-calendar --clear --unit --include-first-date --weekdays-only --verbose --language --today --json --date-format --date-separator --thousands-separator --digit-grouping --no-hyphen' ;;
    month:--calendar) values='CE JC' ;;
    month:--week-start) values='sun mon' ;;
    month:--language) values='en de' ;;
    month:*) options='-h --help --version --calendar --week-start --iso --with-year --language' ;;
    today:--calendar) values='CE ISO JC ORD LPM LPW JDN' ;;
    today:--today) return ;;
    today:--language) values='en de' ;;
    today:*) options='-h --help --version --calendar --all --today --language' ;;
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
