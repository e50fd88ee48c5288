// Plays stored inputs through a fuzz target without libFuzzer, so that any compiler can check that what was
// found once stays mended. Takes files and folders; an empty collection is a failure, not a pass.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

/// Replays one file; returns false when it cannot be read.
bool Replay(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return false;
  const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  // The copy has exactly the input's size, so that a sanitizer sees the first byte read beyond it.
  const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(input.data(), input.size());
  return true;
}

/// Lists the regular files at and below a path.
std::vector<std::filesystem::path> FilesAt(const std::filesystem::path& path) {
  if (!std::filesystem::is_directory(path)) return {path};
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& file : FilesAt(argv[i])) {
      if (!Replay(file)) {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        return 1;
      }
      ++replayed;
    }
  }
  if (replayed == 0) {
    std::fprintf(stderr, "there is nothing to replay\n");
    return 1;
  }
  std::printf("%d inputs replayed\n", replayed);
  return 0;
}
