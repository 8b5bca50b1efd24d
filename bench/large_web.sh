# Sourced by the measurements of large webs.

make_large_web() { # FOLDER PAGES: the sample web with this many more copies of its home page, a hundred in a folder
    local web=$1 pages=$2 folder i
    cp -r samples/larkfell "$web"
    for ((i = 0; i < pages; i++)); do
        folder=$web/part$((i / 100))
        mkdir -p "$folder"
        sed 's|_themes/|../_themes/|g' samples/larkfell/index.htm >"$folder/page$i.htm"
    done
}
