# For script/package and the tests of the packages, which source it in the project's folder: what goes into each package.

# The version that the library itself says, and the number of the package made of it.
version() { sed -n 's/^FILEVERSION \([0-9,]*\).*/\1/p' ZORBOffice/resources/ZORBOffice.rc | tr , .; }
release() { cat packaging/release; }

pages() { git ls-files README.md 'docs/*.md' 'bindings/*.md' 'examples/*.md' | grep -v '^docs/releasing.md$'; }

# What every package has: the pages, and what others wrote.
stage_common() {
  mkdir -p "$1"
  python3 packaging/parts.py notices "$1/NOTICES.txt"
  mapfile -t all_pages < <(pages)
  python3 packaging/handbook.py "ZORBOffice $(version)" "$1/ZORBOffice.html" "${all_pages[@]}"
  for licence in LICENSE LICENSE.txt LICENSE.md COPYING; do
    [ ! -e "$licence" ] || cp "$licence" "$1"
  done
}

stage_libraries() {
  local bits
  for bits in win32 win64; do
    mkdir -p "$1/$bits"
    cp "build/$bits/ZORBOffice.ocx" "build/$bits/ZORBOffice.manifest" "$1/$bits"
  done
}

stage_setup() {
  mkdir -p "$1"
  cp "$work/common"/* "$1"
  stage_libraries "$1"
}

stage_archive() {
  stage_setup "$1"
  git ls-files docs/reference bindings examples | while IFS= read -r file; do
    mkdir -p "$1/$(dirname "$file")"
    cp "$file" "$1/$file"
  done
}

# The programs that the check has a row for.
check_tests() { sed -n 's/^ *\([a-z]*_test\): ".*/\1/p' packaging/check/parts.js; }

# The check for Windows: its scripts, the libraries, the test programs that need no bridge, and the examples' templates.
stage_check() {
  local bits test
  stage_libraries "$1"
  for bits in win32 win64; do
    for test in $(check_tests); do cp "build/$bits/$test.exe" "$1/$bits"; done
  done
  cp packaging/check/* examples/demo/letter.dotx examples/demo/letters.dotx "$work/common/NOTICES.txt" "$1"
  echo "$(version)-$(release)" >"$1/VERSION.txt"
  # Windows' own programs want its line ends.
  sed -i 's/$/\r/' "$1"/*.{cmd,txt,js,vbs,ps1,cs}
  sed -i 's/\r\r$/\r/' "$1/NOTICES.txt"
}

# Makes an installer of the staged files: make_installer FOLDER RELEASE OUT. What it makes besides stands next to the folder.
make_installer() {
  python3 packaging/make_icon.py ZORBOffice/resources/zorb_word.bmp "$1.ico"
  local bits
  for bits in 32 64; do
    { files_of "$1" $bits; printf '%s\n' files.txt uninstall.exe; } | sort | sed 's,/,\\,g; s/$/\r/' >"$1.list$bits"
  done
  {
    macro UNPACK32 "$1" 32
    macro UNPACK64 "$1" 64
  } >"$1.payload"
  makensis -NOCD -V2 "-DVERSION=$(version)" "-DRELEASE=$2" "-DPAYLOAD=$1.payload" "-DICON=$1.ico" "-DOUT=$3" packaging/setup.nsi
}

# The files that are installed on Windows of a bitness.
files_of() { (cd "$1" && find . -type f -printf '%P\n' | { if [ "$2" = 64 ]; then cat; else grep -v '^win64/'; fi; } | sort); }

# NSIS's instructions for them: macro NAME FOLDER BITS
macro() {
  local file kilobytes
  kilobytes=$(files_of "$2" "$3" | (cd "$2" && xargs -d '\n' stat -c %s) |
    awk '{ bytes += $1 } END { print int((bytes + 1023) / 1024) }')
  printf '!define SIZE%s %s\n!macro %s to\n' "$3" "$kilobytes" "$1"
  files_of "$2" "$3" | while IFS= read -r file; do
    printf 'SetOutPath "${to}\\%s"\nFile "%s"\n' "$(dirname "/$file" | cut -c2-)" "$2/$file"
  done
  printf 'SetOutPath "${to}"\nFile /oname=files.txt "%s"\n!macroend\n' "$2.list$3"
}
