#!/usr/bin/env bash
# Installs, with apt-get, the Debian 12 packages the build needs that are missing.
set -euo pipefail
pacotes=(build-essential cmake g++ pkg-config libgtest-dev googletest libgmock-dev
         libbenchmark-dev nlohmann-json3-dev libcli11-dev libfmt-dev libmimalloc-dev
         qt6-base-dev qt6-translations-l10n libgl-dev xvfb xauth fonts-liberation poppler-utils
         dpkg-dev fakeroot file lintian appstream desktop-file-utils man-db debootstrap
         clang-14 libclang-rt-14-dev
         openbox xdotool xclip x11-utils imagemagick dbus at-spi2-core python3-pyatspi
         gir1.2-atspi-2.0 ccache)
faltam=()
for p in "${pacotes[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || faltam+=("$p")
done
if [ ${#faltam[@]} -gt 0 ]; then
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  echo "Instalando: ${faltam[*]}"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${faltam[@]}"
fi
