# For the other scripts, which source it: says what they wait for, and how far that is.

# Makes room on the terminal for something else than the line that moves.
end_line() { [ ! -t 2 ] || printf '\r\033[K' >&2; }

# Passes the lines of its input on, up to its end. Those that begin with "N of M" are not passed on but tell how far it is:
# follow WHAT. A terminal shows that at once, in one line that moves and then goes; a log gets a line when the wait takes
# longer than five seconds, and one each half minute from then on.
follow() {
  local what=$1 line part= text state far= due=5 began=$SECONDS elapsed
  while :; do
    elapsed=$((SECONDS - began))
    text="$what${far:+: $far}, $elapsed s"
    if [ -t 2 ]; then
      printf '\r\033[K%s' "${text::79}" >&2
    elif [ "$elapsed" -ge "$due" ]; then
      echo "$text" >&2
      due=$((elapsed + 30))
    fi
    state=0
    IFS= read -r -t 1 line || state=$?
    if [ "$state" -gt 128 ]; then part+=$line; continue; fi  # The second ended, perhaps within a line.
    if [ "$state" -gt 0 ]; then break; fi
    line=$part$line
    part=
    if [[ $line =~ ^[0-9]+\ of\ [0-9]+ ]]; then
      far=$line
    else
      far=  # What was counted is over.
      end_line
      printf '%s\n' "$line"
    fi
  done
  end_line
}
