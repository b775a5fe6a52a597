# shellcheck shell=bash
# Sourced by the scripts that need Debian packages.

# Installs those of the named packages that are missing, saying so on standard error.
require_packages() {
  local missing=() package
  for package in "$@"; do
    if [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return
  fi
  echo "Installing Debian packages: ${missing[*]}" >&2
  local as_root=()
  if ((EUID != 0)); then
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update --quiet=2 >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install --quiet=2 --yes --no-install-recommends "${missing[@]}" >&2
}
