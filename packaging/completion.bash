# Completion for velkmap and velkworkbench: commands and options as the programs themselves tell them.
_velk_options() {
  "$@" --help 2>/dev/null | grep -oE '(^|[ ,])--?[a-z][a-z-]*' | tr -d ' ,' | sort -u
}

_velkmap() {
  local current="${COMP_WORDS[COMP_CWORD]}" words
  if [ "$COMP_CWORD" -eq 1 ]; then
    words="$(velkmap --help 2>/dev/null | sed -nE 's/^  ([a-z]+) .*/\1/p') --help --version"
  elif [[ "$current" == -* ]]; then
    words="$(_velk_options velkmap "${COMP_WORDS[1]}")"
  fi
  mapfile -t COMPREPLY < <(compgen -W "${words:-}" -- "$current")
}

_velkworkbench() {
  local current="${COMP_WORDS[COMP_CWORD]}" words=
  [[ "$current" != -* ]] || words="$(_velk_options velkworkbench)"
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -o default -F _velkmap velkmap
complete -o default -F _velkworkbench velkworkbench
