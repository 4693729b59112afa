# To be sourced: fetch_source PACKAGE FOLDER puts Debian's source of a package,
# patched as Debian's own, into FOLDER, by way of lists of our own: those of the
# system seldom name sources.
fetch_source() {
  local package=$1 folder=$2
  local apt=$folder/apt keyring=/usr/share/keyrings/debian-archive-keyring.gpg
  mkdir -p "$apt/lists/partial" "$apt/archives/partial" "$folder/sources"
  apt-get indextargets --format '$(REPO_URI) $(RELEASE)' \
    "Identifier: Packages" "Component: main" "Label: Debian" | sort -u |
    sed "s|^|deb-src [signed-by=$keyring] |; s|\$| main|" >"$apt/sources.list"
  [[ -s $apt/sources.list ]] || return 1
  local options=(-o "Dir::Etc::SourceList=$apt/sources.list"
    -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$apt/lists"
    -o "Dir::Cache=$apt" -o APT::Sandbox::User=root -qq)
  apt-get "${options[@]}" update &&
    (cd "$folder/sources" && apt-get "${options[@]}" source "$package")
}
