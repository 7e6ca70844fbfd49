// SPDX-License-Identifier: MIT
// A disk that fails on demand, in user space: faulty_disk SOURCE CONTROL MOUNTPOINT
//
// Shows the folder SOURCE, read-only, at MOUNTPOINT. Before it answers, it looks into the file
// CONTROL for what to do, which is empty or one of
//   list    folders cannot be read
//   open    files cannot be opened
//   read    files cannot be read
//   middle  files cannot be read behind their first 64 KiB
//   stall   reading takes 1.5 seconds each time
// Everything else is an error of input and output (EIO).
#define FUSE_USE_VERSION 31 // NOLINT(cppcoreguidelines-macro-usage)

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <fuse.h>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr off_t middle = 64 * 1024;
constexpr std::chrono::milliseconds stall{1500};

std::string& source()
{
    static std::string folder;
    return folder;
}

std::string& control()
{
    static std::string file;
    return file;
}

std::string fault()
{
    std::string word;
    std::ifstream(control()) >> word;
    return word;
}

int attributes(const char* path, struct stat* found, fuse_file_info*)
{
    return lstat((source() + path).c_str(), found) == 0 ? 0 : -errno;
}

int list(const char* path, void* entries, fuse_fill_dir_t fill, off_t, fuse_file_info*,
         fuse_readdir_flags)
{
    if (fault() == "list")
        return -EIO;
    DIR* const folder = opendir((source() + path).c_str());
    if (!folder)
        return -errno;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the stream is this call's own
    while (const dirent* entry = readdir(folder))
        fill(entries, entry->d_name, nullptr, 0, fuse_fill_dir_flags(0));
    closedir(folder);
    return 0;
}

int openFile(const char* path, fuse_file_info* file)
{
    if (fault() == "open")
        return -EIO;
    if ((file->flags & O_ACCMODE) != O_RDONLY)
        return -EROFS;
    const int descriptor = open((source() + path).c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return -errno;
    file->fh = std::uint64_t(descriptor);
    file->direct_io = 1; // every read comes here, none is answered from memory
    return 0;
}

int readFile(const char*, char* bytes, std::size_t size, off_t offset, fuse_file_info* file)
{
    const std::string now = fault();
    if (now == "stall")
        std::this_thread::sleep_for(stall);
    if (now == "read" || (now == "middle" && offset >= middle))
        return -EIO;
    if (now == "middle")
        size = std::min(size, std::size_t(middle - offset));
    const ssize_t count = pread(int(file->fh), bytes, size, offset);
    return count < 0 ? -errno : int(count);
}

int closeFile(const char*, fuse_file_info* file)
{
    close(int(file->fh));
    return 0;
}

void* start(fuse_conn_info*, fuse_config* config)
{
    config->attr_timeout = 0;
    config->entry_timeout = 0;
    config->negative_timeout = 0;
    return nullptr;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return EXIT_FAILURE;
    source() = argv[1];
    control() = argv[2];
    fuse_operations operations = {};
    operations.getattr = attributes;
    operations.readdir = list;
    operations.open = openFile;
    operations.read = readFile;
    operations.release = closeFile;
    operations.init = start;
    std::array<std::string, 5> words{argv[0], "-f", "-o", "ro,fsname=faulty_disk", argv[3]};
    std::array<char*, 6> arguments{};
    for (std::size_t i = 0; i < words.size(); ++i)
        arguments[i] = words[i].data();
    return fuse_main(int(words.size()), arguments.data(), &operations, nullptr);
}
