# shellcheck shell=bash
# What every script reads first. Makes scripts behave alike whatever the caller has exported, in any
# folder. Source this file by the real path of the script, so that a link to the script works too:
#
#   . "$(dirname "$(realpath "$0")")/environment.sh"
#
#   $root        the folder of the project, without links
#   showUsage    prints the comment at the script's head, and ends it with exit code 2
#
# A failing command, an unset variable and a failing part of a pipe end the script.
set -euo pipefail

# CDPATH makes cd go elsewhere and print. A hook of git exports whose index and files it works on;
# what configures git stays. The others change what tools print, or how and what they build or test.
unset CDPATH BASH_ENV ENV GREP_OPTIONS POSIXLY_CORRECT
unset CFLAGS CXXFLAGS CPPFLAGS LDFLAGS DESTDIR NINJA_STATUS
for name in "${!GIT_@}" "${!CMAKE_GENERATOR@}" "${!GTEST_@}"; do
    [[ $name == GIT_CONFIG* ]] || unset "$name"
done
unset name
export LC_ALL=C.UTF-8

root=$(cd -P "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck disable=SC2034 # for the script
readonly root

showUsage() {
    sed -n '2,/^[^#]/{/^# shellcheck/d;s/^#\( \|$\)//p}' "$0" >&2
    exit 2
}
