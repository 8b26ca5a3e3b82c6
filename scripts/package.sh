# Makes the packages: the cabinet a device installs from, and the archive for a PC. Sourced after common.sh and build.sh.
# shellcheck shell=bash

# Times in the packages are fixed, so that the same files always make the same package, byte for byte.
QV_PACKAGE_TIME='2000-01-01 12:00:00 UTC'
# An uncompressed cabinet holds at most this many blocks of 32 KB.
QV_LARGEST_CABINET=$((65535 * 32768))
# What the archive holds from the build's folder; the substitutes of the device's libraries and all profiles are added.
QV_PC_FILES=(Quorvane.exe Quorvane.zrs handheld.exe)
# The folder in the archive.
QV_PC_FOLDER=Quorvane

# check_files <file...>: each is there and has content, and they fit into a cabinet together.
check_files()
{
    local file size total=0
    for file in "$@"; do
        [[ -f $file && -r $file ]] || fail "the file $file is missing"
        size=$(stat -L -c %s "$file")
        ((size > 0)) || fail "the file $file is empty"
        total=$((total + size))
    done
    ((total <= QV_LARGEST_CABINET)) ||
        fail "the files are larger than a cabinet can be ($total bytes, $QV_LARGEST_CABINET allowed): $*"
}

# put_file <from> <to>: a copy that depends on neither the owner's umask nor the build's file modes.
put_file()
{
    install -D -m 644 "$1" "$2" || fail "cannot write $2"
}

# publish <made> <final>: a package appears under its name when it is complete.
publish()
{
    put_file "$1" "$2.part"
    mv -f "$2.part" "$2" || fail "cannot write $2"
}

# make_cabinet <cabheader> <description> <folder> <work> <cabinet> [<certificate> <key>]: a cabinet of what the
# description names. The files come from <folder>, <work> becomes a new folder for what is made on the way. With a
# certificate the programs in the cabinet are signed and the cabinet is, for a device asks about both.
make_cabinet()
{
    local cabheader=$1 description=$2 folder=$3 work=$4 cabinet=$5 certificate=${6:-} key=${7:-}
    local list member file members=() files=() made=$4/made.cab
    list=$("$cabheader" --members "$description") || fail "the description $description was refused"
    while IFS=$'\t' read -r member file; do
        members+=("$member")
        if [[ -n $file ]]; then
            files+=("$folder/$file")
        fi
    done <<<"$list"
    check_files "${files[@]}"

    make_folder "$work/members"
    "$cabheader" "$description" "$work/members" || fail "the instructions for the installer could not be written"
    while IFS=$'\t' read -r member file; do
        if [[ -n $file ]]; then
            put_file "$folder/$file" "$work/members/$member"
        fi
        if [[ -n $certificate && ${file,,} =~ \.(exe|dll)$ ]]; then
            sign_file "$work" "$certificate" "$key" "$work/members/$member"
        fi
    done <<<"$list"
    touch -d "$QV_PACKAGE_TIME" "$work"/members/*
    (cd "$work/members" && TZ=UTC quietly "$work/gcab.log" gcab -c -n "$made" "${members[@]}")
    if [[ -n $certificate ]]; then
        sign_file "$work" "$certificate" "$key" "$made"
    fi
    check_cabinet "$work" "$made" "$list"
    publish "$made" "$cabinet"
}

# check_cabinet <work> <cabinet> <list of its members>: another program reads the members back, in this order.
check_cabinet()
{
    local listed wanted
    quietly "$1/cabextract.log" cabextract -t "$2"
    listed=$(cabextract -l "$2" 2>/dev/null | sed -n 's/^ *[0-9]* | [0-9. :]* | //p')
    wanted=$(cut -f 1 <<<"$3")
    [[ $listed == "$wanted" ]] || fail "the cabinet does not list what it should: ${listed//$'\n'/, }"
}

# check_certificate <certificate> <key>: both can be read, and they belong together.
check_certificate()
{
    local of_certificate of_key
    of_certificate=$(openssl x509 -in "$1" -noout -pubkey 2>/dev/null) ||
        fail "$1 is not a certificate in PEM form"
    of_key=$(openssl pkey -in "$2" -pubout -passin pass: 2>/dev/null </dev/null) ||
        fail "$2 is not a private key in PEM form without a pass phrase"
    [[ $of_certificate == "$of_key" ]] || fail "the key $2 does not belong to the certificate $1"
    openssl x509 -in "$1" -noout -checkend 0 >/dev/null || say "Note: the certificate $1 has expired."
}

# sign_file <work> <certificate> <key> <file>: signs it in place. Devices of that time know SHA-1 only.
sign_file()
{
    local work=$1 certificate=$2 key=$3 file=$4 report current calculated trusted=yes
    rm -f "$work/signed"
    quietly "$work/sign.log" osslsigncode sign -h sha1 -n Quorvane \
        -certs "$certificate" -key "$key" -in "$file" -out "$work/signed"
    # The issuer of a self-made certificate is the certificate itself; that of another may be unknown here.
    report=$(osslsigncode verify -CAfile "$certificate" -in "$work/signed" 2>&1) || trusted=no
    current=$(sed -n 's/^Current message digest *: *\([0-9A-F]*\).*/\1/p' <<<"$report")
    calculated=$(sed -n 's/^Calculated message digest *: *\([0-9A-F]*\).*/\1/p' <<<"$report")
    [[ -n $current && $current == "$calculated" ]] || fail "the signature of $file does not verify: $report"
    if [[ $trusted == no ]]; then
        say "Note: the digest of the signature is right, but the certificate's issuer could not be verified here."
    fi
    mv -f "$work/signed" "$file"
}

# make_pc_archive <bin folder> <work> <archive>: what a Windows PC needs to run the program on a handheld of its own.
make_pc_archive()
{
    local bin=$1 work=$2 archive=$3 file version made=$2/made.zip
    local files names=() top=$2/archive/$QV_PC_FOLDER texts=$QV_ROOT/packaging/pc
    mapfile -t files < <(printf '%s\n' "${QV_PC_FILES[@]}" && substitute_dlls)
    for file in "$bin"/profiles/*.ini; do
        files+=("profiles/${file##*/}")
    done
    check_files "${files[@]/#/$bin/}"
    for file in "${files[@]}"; do
        put_file "$bin/$file" "$top/$file"
    done
    version=$(sed -n 's/^#define QV_VERSION_TEXT "\(.*\)"$/\1/p' "$QV_ROOT/resources/version.h")
    [[ -n $version ]] || fail "resources/version.h does not say the version"
    for file in README.txt run.cmd; do
        sed -e "s/@VERSION@/$version/" -e 's/$/\r/' "$texts/$file" >"$work/text" || fail "cannot write $work/text"
        put_file "$work/text" "$top/$file"
    done
    # In a fixed order, without the owners and further times that this system knows of a file.
    find "$work/archive" -type f -exec touch -d "$QV_PACKAGE_TIME" {} +
    mapfile -t names < <(find "$work/archive" -type f -printf '%P\n' | LC_ALL=C sort)
    (cd "$work/archive" && TZ=UTC quietly "$work/zip.log" zip -X -9 "$made" "${names[@]}")
    quietly "$work/unzip.log" unzip -tq "$made"
    publish "$made" "$archive"
}
