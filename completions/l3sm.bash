# Completion of l3sm for bash. The program itself knows what can follow: verbs, options, tables, fields, controls, paths,
# attributes, toggles, facilities, chips.
#
#    source completions/l3sm.bash        # or put it into /usr/share/bash-completion/completions/l3sm

_l3sm() {
  local program=$1 line=${COMP_LINE:0:COMP_POINT} words answer
  read -ra words <<< "$line"
  [[ $line == *[[:space:]] ]] && words+=('')
  local current=${words[-1]}
  # Readline cuts words at colons and equals signs: what stands before the last of them in this word is there already.
  local before=
  [[ $current == *[:=]* ]] && before=${current%"${current##*[:=]}"}
  COMPREPLY=()
  while IFS= read -r answer; do
    case $answer in
      :files)
        compopt -o filenames 2> /dev/null
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "${current#"$before"}")
        ;;
      :open) compopt -o nospace 2> /dev/null ;;
      *)
        answer=${answer%%$'\t'*}
        COMPREPLY+=("${answer#"$before"}")
        ;;
    esac
  done < <("$program" complete -- "${words[@]}" 2> /dev/null)
}

complete -F _l3sm l3sm
