#!/usr/bin/env bash
# Installs the Debian packages the build needs when they are missing: the compilers with
# 32-bit support, CMake and Ninja, GoogleTest sources, Google Benchmark, gencat, pkg-config,
# the locale sources the tests compile, clang (for the fuzz targets) and qemu-user (to run i386
# programs on kernels without 32-bit support). Runs apt-get only when something is missing.
set -euo pipefail

packages=(g++ g++-multilib cmake ninja-build googletest libbenchmark-dev libc-bin pkg-config
          clang libclang-rt-14-dev clang-format qemu-user locales)
missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi
echo "installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
"${sudo_cmd[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "${missing[@]}"
