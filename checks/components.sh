#!/usr/bin/env bash
#
# checks/components.sh FOLDER: whether the list of components of the release in it has what SPDX 2.3 asks
# for, names every file of the release by its sum, and every licence as SPDX does.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "$0")")/../scripts/setup.sh"

expect_arguments 1 1 "$@"
[ -f "$1/SHA256SUMS" ] || refuse "there is no $1/SHA256SUMS"
export LC_ALL=C.UTF-8
install_packages jq python3-license-expression
list=$(echo "$1"/*.spdx.json)

fail() {
    echo "$list: $*" >&2
    exit 1
}

# must WORDS FILTER: fails with those words, unless that filter of jq says true.
must() {
    [ "$(jq "$2" "$list")" = true ] || fail "$1"
}

must "not SPDX 2.3" '.spdxVersion == "SPDX-2.3" and .dataLicense == "CC0-1.0" and .SPDXID == "SPDXRef-DOCUMENT"'
must "no name or origin" '(.name | length > 0) and (.documentNamespace | test("^https://[^#]+$"))
    and (.creationInfo.created | fromdate | todate) == .creationInfo.created
    and (.creationInfo.creators | length > 0 and all(test("^(Person|Organization|Tool): ")))'
must "a component lacks a field" '.packages | length > 0 and all((.SPDXID | test("^SPDXRef-[A-Za-z0-9.-]+$"))
    and ([.name, .downloadLocation, .licenseDeclared, .licenseConcluded, .copyrightText] | all(length > 0))
    and .filesAnalyzed == false)'
must "a component has neither a version nor a reason" '.packages | all(.versionInfo // .comment | length > 0)'
# Of those that SPDX has, the ones that the list needs.
must "another word than is known" '
    ([.relationships[].relationshipType] - ["DESCRIBES", "CONTAINS", "DEPENDS_ON"] == [])
    and ([.packages[].checksums[]?.algorithm] - ["SHA256"] == [])
    and ([.packages[].externalRefs[]?] | length > 0 and all(.referenceCategory == "PACKAGE-MANAGER"
        and .referenceType == "purl" and (.referenceLocator | test("^pkg:deb/debian/[^ ]+$"))))'
must "two components have one id" '[.packages[].SPDXID] | length == (unique | length)'
# shellcheck disable=SC2016
must "what is related, or to what, is not in the list" '(["SPDXRef-DOCUMENT", .packages[].SPDXID]) as $ids
    | .relationships | all([.spdxElementId, .relatedSpdxElement] - $ids == [])'
must "a component is a part of nothing" '[.packages[].SPDXID] - [.relationships[].relatedSpdxElement] == []'
# shellcheck disable=SC2016
must "a Debian package needs nothing" '
    [.relationships[] | select(.relationshipType == "DEPENDS_ON").spdxElementId] as $needing
    | [.packages[] | select((.packageFileName // "") | endswith(".deb")).SPDXID] | length > 0 and . - $needing == []'
parts='"xml2ryk", "qtbase-opensource-src", "libgcc, libstdc++ and libssp of GCC", "run time of mingw-w64"'
setup_parts="$parts, \"installer of NSIS\""
must "no version of the program, or of what becomes a part of it" "
    [$setup_parts] - [.packages[] | select(.versionInfo).name] == []"
# contain END PARTS: whether the files with this end of their names do.
contain() {
    # shellcheck disable=SC2016
    must "a file $1 lacks a part" '(.packages | map({key: .SPDXID, value: .name}) | from_entries) as $names
        | .relationships as $relations
        | [.packages[] | select((.packageFileName // "") | endswith("'"$1"'")).SPDXID]
        | length > 0 and all(. as $file | ['"$2"'] - [$relations[]
            | select(.spdxElementId == $file and .relationshipType == "CONTAINS") | $names[.relatedSpdxElement]] == [])'
}
contain .zip "$parts"
contain .exe "$setup_parts"
contain -toolkit.tar '"qtbase-opensource-src"'
contain .tar.gz '"xml2ryk"'
contain .deb '"xml2ryk"'
must "nobody is named who wrote the program" '[.packages[] | select(.name == "xml2ryk").copyrightText]
    | length == 1 and all(test("^Copyright [0-9]"))'
# Each is in one of the files, whatever else the toolkit has.
must "the toolkit or a library in it is missing" '["qtbase-opensource-src", "zlib", "pcre2", "doubleconversion"]
    - [.packages[].name] == []'
diff <(grep -vF .spdx.json "$1/SHA256SUMS") \
    <(jq -r '.packages[] | select(.packageFileName) | "\(.checksums[0].checksumValue)  \(.packageFileName)"' "$list" |
        sort -k 2) || fail "other files than there are"

jq '[.packages[].licenseDeclared, .packages[].licenseConcluded] | unique' "$list" |
    /usr/bin/python3 -c '
import json, sys
import license_expression
known = license_expression.get_spdx_licensing()
own = {each["licenseId"] for each in json.load(open(sys.argv[1]))["hasExtractedLicensingInfos"]}
for expression in json.load(sys.stdin):
    unknown = {str(each) for each in known.unknown_license_symbols(expression)} - own - {"NOASSERTION"}
    if unknown:
        sys.exit(f"no licence of SPDX: {unknown}")
' "$list" || fail "a licence that SPDX does not have"
