# shellcheck shell=sh disable=SC2154
# Sourced by ./run and ./test, which set $root to the folder of the sources.

# install_packages KIND...: installs the Debian packages of these kinds in packages.txt that are missing.
install_packages() {
  missing=
  while read -r kind package; do
    case " $* " in *" $kind "*) ;; *) continue ;; esac
    dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed' || missing="$missing $package"
  done <"$root/cmake/packages.txt"
  [ -n "$missing" ] || return 0

  if [ "$(id -u)" -eq 0 ]; then
    as_root=
  elif command -v sudo >/dev/null; then
    as_root=sudo
  else
    echo "These packages are missing, and only root or sudo can install them:$missing" >&2
    return 1
  fi
  echo "Installing$missing"
  $as_root apt-get update -q
  # shellcheck disable=SC2086
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
}
