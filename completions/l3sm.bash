# Completion of l3sm for bash: verbs, options, tables, fields, chips, and files.
#
#    source completions/l3sm.bash        # or put it into /usr/share/bash-completion/completions/l3sm
#
# Tables and fields are asked of the program itself.

_l3sm_tables() { "$1" catalogue 2> /dev/null | sed -n '2,/^$/s/ .*//p'; }

_l3sm_fields() { "$1" catalogue "$2" --json 2> /dev/null | grep -o '"name": "[^"]*"' | sed 's/.*: "//; s/"$//' | sort -u; }

_l3sm_options() { "$1" "$2" --help 2> /dev/null | sed -nE 's/^  (-[a-z],)?(--[a-z-]+).*/\2/p'; }

_l3sm() {
  local program=$1 current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} verb=${COMP_WORDS[1]}
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    local verbs
    verbs=$("$program" --help 2> /dev/null | sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z]*\) .*/\1/p')
    mapfile -t COMPREPLY < <(compgen -W "$verbs --help --version" -- "$current")
    return
  fi
  case $previous in
    --chip)
      mapfile -t COMPREPLY < <(compgen -W "BCM88690_B0 BCM88800_A0 BCM88850_A0 BCM88859_A2 BCM88480_A0 BCM88480_B0" -- "$current")
      return ;;
    --table)
      mapfile -t COMPREPLY < <(compgen -W "$(_l3sm_tables "$program") controls" -- "$current")
      return ;;
    --event)
      mapfile -t COMPREPLY < <(compgen -W "all last" -- "$current")
      return ;;
    --fap | --variant | --array | --entry | --at | --last | --function | --cause | --trace | --toggle) return ;;
    --chips | --journal | --state | --save | --report | --trace-out | --plugin | --scenario | --out | -o)
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      return ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_l3sm_options "$program" "$verb")" -- "$current")
    return
  fi
  case $verb in
    catalogue) mapfile -t COMPREPLY < <(compgen -W "$(_l3sm_tables "$program")" -- "$current") ;;
    show)
      if ((COMP_CWORD == 2)); then mapfile -t COMPREPLY < <(compgen -f -- "$current")
      else mapfile -t COMPREPLY < <(compgen -W "$(_l3sm_tables "$program")" -- "$current"); fi ;;
    why)
      if ((COMP_CWORD == 2)); then mapfile -t COMPREPLY < <(compgen -f -- "$current")
      elif [[ $current == *.* ]]; then
        mapfile -t COMPREPLY < <(compgen -P "${current%%.*}." -W "$(_l3sm_fields "$program" "${current%%.*}")" -- "${current#*.}")
      else mapfile -t COMPREPLY < <(compgen -W "$(_l3sm_tables "$program")" -- "$current"); fi ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
  esac
}

complete -o filenames -o bashdefault -F _l3sm l3sm
