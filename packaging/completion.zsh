#compdef xml2ryk xml2ryk-batch

local -a common sources
common=(
    '--purchase[the documents are purchases]'
    '--json[one object a line for each source]'
    '--timeout[how long a source may take]:seconds'
    '--log[gets a line for each source]:file:_files'
    '(- *)--help[prints the usage]'
)
sources=(
    $common
    '--all[every finding, not the first ten of a kind]'
    '--jobs[sources at the same time]:number'
    '--allow-empty[a source with nothing in it is fine]'
    '*--accept[this kind of loss counts as a doubt]:kind:(no-code no-partner no-number no-lines prefixed-name not-reached)'
)

case $service$words[2] in
xml2ryk-batchcheck)
    shift words && ((--CURRENT))
    _arguments $sources '*:source:_files'
    ;;
xml2ryk-batchconvert)
    shift words && ((--CURRENT))
    _arguments $sources \
        '--into[where exchange files go]:folder:_files -/' \
        '--wait[how long to wait for another run]:seconds' \
        '--strict[a loss keeps the old file]' \
        '--max-drop[keeps the old file where more than this is missing]:percent' \
        '--keep[how many old files stay]:number' \
        '*:file:_files'
    ;;
xml2ryk-batchverify)
    shift words && ((--CURRENT))
    _arguments $common '--source[the counts are compared with this]:source:_files' \
        '*:exchange file:_files'
    ;;
xml2ryk-batch*)
    _arguments '(- *)--help[prints the usage]' '(- *)--version[prints the version]' \
        '1:command:(check convert verify)'
    ;;
*)
    _arguments '1:source:_files' '2:destination:_files' \
        '--purchase[the documents are purchases]' '--pause[waits for a key at the end]'
    ;;
esac
