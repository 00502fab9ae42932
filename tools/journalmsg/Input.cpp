#include "Input.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>

#include "inspect/Redact.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

namespace fs = std::filesystem;
constexpr std::size_t pieceSize = std::size_t{1} << 18;
constexpr std::string_view gzipMagic = "\x1f\x8b";

std::string nameOf(std::string const& path) {
  return path == "-" ? "standard input" : path;
}

[[noreturn]] void failReading(std::string const& path, std::string const& reason) {
  throw Failure("cannot read " + inspect::safeText(nameOf(path)) + ": " + reason);
}

struct Descriptor {
  explicit Descriptor(int opened) : number(opened) {}
  ~Descriptor() {
    if (number >= 0)
      close(number);
  }
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  int number;
};

/// Reads at least so many bytes, fewer only at the end.
std::string_view readSome(Descriptor const& file, std::string const& path, std::string& buffer,
                          std::size_t least) {
  std::size_t size = 0;
  while (size < least) {
    auto const count = ::read(file.number, buffer.data() + size, buffer.size() - size);
    if (count < 0 && errno == EINTR)
      continue;
    if (count < 0)
      failReading(path, std::generic_category().message(errno));
    if (count == 0)
      break;
    size += static_cast<std::size_t>(count);
  }
  return std::string_view(buffer).substr(0, size);
}

/// Unpacks gzip, several members one after another too.
class Inflater {
public:
  explicit Inflater(std::string const& path) : path_(path) {
    constexpr int gzip = 16 + MAX_WBITS;
    if (inflateInit2(&stream_, gzip) != Z_OK)
      failReading(path_, "out of memory");
  }
  ~Inflater() { inflateEnd(&stream_); }
  Inflater(Inflater const&) = delete;
  Inflater& operator=(Inflater const&) = delete;

  void push(std::string_view bytes, std::function<void(std::string_view)> const& read) {
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream_.avail_in = static_cast<uInt>(bytes.size());
    do {
      while (ended_ && stream_.avail_in > 0 && *stream_.next_in == 0) { // padding behind the end
        ++stream_.next_in;
        --stream_.avail_in;
      }
      if (ended_ && stream_.avail_in == 0)
        return;
      if (ended_ && inflateReset(&stream_) != Z_OK)
        failReading(path_, "is damaged gzip");
      stream_.next_out = reinterpret_cast<Bytef*>(out_.data());
      stream_.avail_out = static_cast<uInt>(out_.size());
      int const code = inflate(&stream_, Z_NO_FLUSH);
      if (code != Z_OK && code != Z_STREAM_END && code != Z_BUF_ERROR)
        failReading(path_, "is damaged gzip");
      ended_ = code == Z_STREAM_END;
      read(std::string_view(out_).substr(0, out_.size() - stream_.avail_out));
    } while (stream_.avail_in > 0 || (stream_.avail_out == 0 && !ended_));
  }

  void finish() const {
    if (!ended_)
      failReading(path_, "is gzip that ends too early");
  }

private:
  std::string path_;
  z_stream stream_{};
  std::string out_ = std::string(pieceSize, '\0');
  bool ended_ = false;
};

/// A bar on a terminal, from the third second on.
class Progress {
public:
  explicit Progress(std::vector<std::string> const& files) : shown_(isatty(STDERR_FILENO) == 1) {
    std::error_code error;
    for (auto const& file : files) {
      auto const size = fs::file_size(file, error);
      total_ += error ? 0 : size;
    }
  }
  ~Progress() {
    if (drawn_)
      fmt::print(stderr, "\r\x1b[K");
  }
  Progress(Progress const&) = delete;
  Progress& operator=(Progress const&) = delete;

  void add(std::size_t bytes) {
    done_ += bytes;
    auto const now = Clock::now();
    if (!shown_ || now - started_ < std::chrono::seconds(2) ||
        now - last_ < std::chrono::milliseconds(200))
      return;
    last_ = now;
    drawn_ = true;
    auto const percent = total_ == 0 ? 0 : std::min<std::uint64_t>(100, done_ * 100 / total_);
    fmt::print(stderr, "\r\x1b[K[{:#<{}}{:.<{}}] {} MB", "", percent / 5, "", 20 - percent / 5,
               done_ >> 20);
  }

private:
  using Clock = std::chrono::steady_clock;
  bool shown_;
  bool drawn_ = false;
  std::uint64_t total_ = 0;
  std::uint64_t done_ = 0;
  Clock::time_point started_ = Clock::now();
  Clock::time_point last_ = started_;
};

/// The files of folders, in the order of their names.
std::vector<std::string> filesOf(std::vector<std::string> const& paths) {
  std::vector<std::string> files;
  for (auto const& path : paths) {
    std::error_code error;
    if (path == "-" || !fs::is_directory(path, error)) {
      files.push_back(path);
      continue;
    }
    auto const first = static_cast<std::ptrdiff_t>(files.size());
    constexpr auto skip = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(path, skip, error), end; !error && entry != end;
         entry.increment(error)) {
      std::error_code unknown;
      bool const isFolder = entry->is_directory(unknown);
      // A folder that cannot be searched is reported when it is read like a file.
      if (isFolder ? access(entry->path().c_str(), R_OK | X_OK) != 0
                   : entry->is_regular_file(unknown))
        files.push_back(entry->path().string());
    }
    if (error)
      failReading(path, error.message());
    std::sort(files.begin() + first, files.end());
  }
  return files;
}

void readMessages(std::string const& path, Options const& options, Progress& progress,
                  std::function<void(Item)> const& take) {
  inspect::Stream::Options streamed;
  streamed.scan = options.scan;
  streamed.limit = options.limit;
  inspect::Stream stream(streamed);
  auto const file = std::make_shared<std::string const>(path);
  auto const takeAll = [&] {
    Item item{{}, file};
    while (stream.next(item.found)) {
      if (options.redact)
        item.found.text = inspect::redacted(std::move(item.found.text));
      take(std::move(item));
      item = {{}, file};
    }
    if (stream.isTooLarge())
      failReading(path,
                  fmt::format("a message is larger than {} bytes (see --limit)", options.limit));
  };
  readPieces(path, [&](std::string_view piece) {
    progress.add(piece.size());
    stream.push(piece);
    takeAll();
  });
  stream.finish();
  takeAll();
}

} // namespace

std::string Item::place() const {
  auto const name = *file == "-" ? std::string("stdin") : inspect::safeText(*file);
  return fmt::format("{}:{}", name, found.line);
}

void readPieces(std::string const& path, std::function<void(std::string_view)> const& read) {
  std::error_code ignored;
  if (path != "-" && fs::is_directory(path, ignored))
    failReading(path, "is a folder");
  Descriptor const file(path == "-" ? dup(STDIN_FILENO) : open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.number < 0)
    failReading(path, std::generic_category().message(errno));
  std::unique_ptr<Inflater> inflater;
  std::string buffer(pieceSize, '\0');
  auto piece = readSome(file, path, buffer, gzipMagic.size());
  if (piece.substr(0, gzipMagic.size()) == gzipMagic)
    inflater = std::make_unique<Inflater>(path);
  for (; !piece.empty(); piece = readSome(file, path, buffer, 1))
    if (inflater)
      inflater->push(piece, read);
    else
      read(piece);
  if (inflater)
    inflater->finish();
}

std::string readAll(std::string const& path) {
  std::string all;
  readPieces(path, [&](std::string_view piece) { all.append(piece); });
  return all;
}

bool forEachMessage(Options const& options, std::function<void(Item)> const& take) {
  bool all = true;
  auto const files = filesOf(options.files.empty() ? std::vector<std::string>{"-"} : options.files);
  Progress progress(files);
  for (auto const& file : files) {
    try {
      readMessages(file, options, progress, take);
    } catch (Failure const& failure) {
      complain(failure.what());
      all = false;
    }
  }
  return all;
}

} // namespace journalmsg
