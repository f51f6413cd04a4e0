#!/usr/bin/env bash
# Each rule of tervak-check trips where it should and not at its edge, by the rows of check_rules.txt.
#   check_rules_test.sh TERVAK_CHECK RULE_TABLE_PROGRAM EXAMPLES
set -eu
data=$(cd "$(dirname "$0")" && pwd)/check_rules.txt
check=$1 table=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$3"/*.inp "$3"/*/tutorial*.inp "$work"
bad=0
fail() { echo "$*"; bad=1; }

rules() { sed -n 's/.*: warning: .* \[\([a-z0-9-]*\)\]$/\1/p' | sort -u | paste -sd ,; }
while read -r rule side base others script; do
  case $rule in '#'* | '') continue ;; esac
  [ "$others" = - ] && others=
  sed -e "${script//BASE/$work}" "$work/$base.inp" >"$work/deck"
  cmp -s "$work/$base.inp" "$work/deck" && fail "changes nothing: $script"
  wanted=$(printf '%s\n' ${others//,/ } $([ "$side" = edge ] || echo "$rule") | sort -u | paste -sd ,)
  found=$("$check" "$work/deck" | rules) || true
  [ "$found" = "$wanted" ] || fail "$rule $side $base '$script': found '$found', expected '$wanted'"
  echo "$rule $side" >>"$work/seen"
done <"$data"
for rule in $("$table" --rules | sed -n 's/^| `\([a-z0-9-]*\)`.*/\1/p'); do
  for side in trip edge; do
    grep -qx "$rule $side" "$work/seen" || fail "no row: $rule $side"
  done
done

# Options: accepted rules are passed over, one that does not exist is refused, --strict turns warnings into faults.
status() { local s=0; "$check" "$@" >"$work/out" 2>&1 || s=$?; echo "$s"; }
sed 's/36.0  0.0/46.0 0.0/;s/^ZCYCL.*/ZCYCL -1/' "$work/tutorial.inp" >"$work/two"
[ "$(status "$work/two")" = 1 ] || fail "warnings have the status $(status "$work/two")"
[ "$(status --strict "$work/two")" = 2 ] || fail "--strict has no effect"
[ "$(status --accept friction-angle,cyclic-level --strict "$work/two")" = 0 ] || fail "--accept has no effect"
[ "$(status --accept friction "$work/two")" = 2 ] && grep -q "'friction'" "$work/out" || fail "an unknown rule is taken"
[ "$(status "$work/absent")" = 2 ] || fail "a deck that is not there has no status 2"
[ "$(status)$(status --wrong "$work/two")$(status "$work/two" "$work/two")" = 222 ] || fail "a wrong command line is taken"
exit $bad
