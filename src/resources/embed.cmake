# cmake -D FOLDER=... -D OUTPUT=... -D RESOURCES=type|id|file,... -P embed.cmake
# Writes OUTPUT, which defines morpho::EmbeddedFiles() (embedded_files.h) with the bytes of the files of FOLDER.

set(arrays)
set(entries)
set(count 0)
string(REPLACE "," ";" RESOURCES "${RESOURCES}")
foreach(resource ${RESOURCES})
  string(REPLACE "|" ";" parts ${resource})
  list(GET parts 0 type)
  list(GET parts 1 id)
  list(GET parts 2 file)
  file(READ ${FOLDER}/${file} bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "const unsigned char file${count}[] = {${bytes}};  // ${file}\n")
  string(APPEND entries "        {\"${type}\", ${id}, std::as_bytes(std::span(file${count}))},\n")
  math(EXPR count "${count} + 1")
endforeach()

file(WRITE ${OUTPUT} "#include \"resources/embedded_files.h\"

namespace morpho {

namespace {

${arrays}
}  // namespace

std::span<const EmbeddedFile> EmbeddedFiles() {
    static const EmbeddedFile files[] = {
${entries}    };
    return files;
}

}  // namespace morpho
")
