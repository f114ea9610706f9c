#include "desktop/files/zip_file.h"

#include <zip.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/ports.h"

namespace pawnfield {

namespace {

// More entries than any file that is read here has.
constexpr zip_int64_t kMostEntries = 100000;
constexpr std::uint32_t kKindOfFile = 0170000, kLink = 0120000;

[[noreturn]] void Fail(const std::string& words) { throw RuntimeError(kErrorDeviceIo, words); }

ZipEntry EntryOf(zip* archive, zip_uint64_t index) {
  ZipEntry entry;
  zip_stat_t facts;
  if (zip_stat_index(archive, index, 0, &facts) != 0) Fail("The zip file is broken");
  if ((facts.valid & ZIP_STAT_NAME) != 0) entry.Name = facts.name;
  if ((facts.valid & ZIP_STAT_SIZE) != 0) entry.Size = facts.size;
  entry.IsEncrypted = (facts.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && facts.encryption_method != ZIP_EM_NONE;
  zip_uint8_t system = 0;
  zip_uint32_t attributes = 0;
  if (zip_file_get_external_attributes(archive, index, 0, &system, &attributes) == 0) {
    entry.IsLink = system == ZIP_OPSYS_UNIX && (attributes >> 16U & kKindOfFile) == kLink;
  }
  return entry;
}

struct Progress {
  const std::function<bool(double)>& Go;
  bool Stopped = false;
};

void Tell(zip_t*, double done, void* to) {
  auto& progress = *static_cast<Progress*>(to);
  if (!progress.Go(done)) progress.Stopped = true;
}

int IsStopped(zip_t*, void* of) { return static_cast<Progress*>(of)->Stopped ? 1 : 0; }

void Add(zip* archive, const ZipContent& content) {
  const bool isFile = !content.Path.empty();
  zip_source_t* source = isFile ? zip_source_file(archive, content.Path.c_str(), 0, -1)
                                : zip_source_buffer(archive, content.Bytes.data(), content.Bytes.size(), 0);
  if (source == nullptr) Fail("\"" + content.Name + "\" can't be read");
  const zip_int64_t index = zip_file_add(archive, content.Name.c_str(), source, ZIP_FL_ENC_UTF_8);
  if (index < 0) {
    zip_source_free(source);
    Fail("\"" + content.Name + "\" can't be packed");
  }
  // Pictures and sounds are pressed together already.
  if (isFile) zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
}

// The file that a zip is written into, for the library that asks for each step.
struct Target {
  std::FILE* File;
  zip_error_t Error;
};

zip_int64_t Failed(Target& target, int code, int systemError) {
  zip_error_set(&target.Error, code, systemError);
  return -1;
}

zip_int64_t Seek(Target& target, void* data, zip_uint64_t length) {
  const auto* to = ZIP_SOURCE_GET_ARGS(zip_source_args_seek_t, data, length, &target.Error);
  if (to == nullptr) return -1;
  return std::fseek(target.File, static_cast<long>(to->offset), to->whence) == 0 ? 0
                                                                                 : Failed(target, ZIP_ER_SEEK, errno);
}

zip_int64_t Stat(void* data) {
  zip_stat_t& facts = *static_cast<zip_stat_t*>(data);
  zip_stat_init(&facts);
  facts.valid = ZIP_STAT_SIZE;
  facts.size = 0;
  return sizeof facts;
}

zip_int64_t Serve(void* state, void* data, zip_uint64_t length, zip_source_cmd_t command) {
  auto& target = *static_cast<Target*>(state);
  switch (command) {
    case ZIP_SOURCE_SUPPORTS:
      return ZIP_SOURCE_SUPPORTS_WRITABLE;
    case ZIP_SOURCE_STAT:
      return Stat(data);
    case ZIP_SOURCE_ERROR:
      return zip_error_to_data(&target.Error, data, length);
    case ZIP_SOURCE_WRITE:
      return std::fwrite(data, 1, length, target.File) == length ? static_cast<zip_int64_t>(length)
                                                                 : Failed(target, ZIP_ER_WRITE, errno);
    case ZIP_SOURCE_SEEK_WRITE:
      return Seek(target, data, length);
    case ZIP_SOURCE_TELL_WRITE:
      return std::ftell(target.File);
    case ZIP_SOURCE_COMMIT_WRITE:
      return std::fflush(target.File) == 0 ? 0 : Failed(target, ZIP_ER_WRITE, errno);
    default:
      // Nothing is read from it, and whoever opened the file closes or removes it.
      return 0;
  }
}

[[noreturn]] void FailToWrite(zip_error_t& error) {
  const int number = zip_error_system_type(&error) == ZIP_ET_SYS ? zip_error_code_system(&error) : 0;
  if (number == ENOSPC || number == EDQUOT) throw RuntimeError(kErrorDiskFull, "Disk full");
  throw RuntimeError(kErrorDeviceIo, zip_error_strerror(&error));
}

}  // namespace

void ZipReader::Close::operator()(zip* archive) const { zip_discard(archive); }

ZipReader::ZipReader(zip* archive) : archive_(archive) {
  const zip_int64_t count = zip_get_num_entries(archive, 0);
  if (count > kMostEntries) Fail("It holds too many files");
  for (zip_int64_t i = 0; i < count; ++i) entries_.push_back(EntryOf(archive, static_cast<zip_uint64_t>(i)));
}

ZipReader ZipReader::OfFile(const std::string& path) {
  int error = 0;
  zip* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
  if (archive == nullptr) Fail(error == ZIP_ER_NOENT ? "File not found" : "It is no zip file, or a broken one");
  return ZipReader(archive);
}

ZipReader ZipReader::OfBytes(std::string_view bytes) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  zip* archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
  if (archive == nullptr && source != nullptr) zip_source_free(source);
  zip_error_fini(&error);
  if (archive == nullptr) Fail("It is no zip file, or a broken one");
  return ZipReader(archive);
}

int ZipReader::Find(std::string_view name) const {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].Name == name) return static_cast<int>(i);
  }
  return -1;
}

void ZipReader::Copy(std::size_t entry, std::uint64_t limit, const std::function<bool(std::string_view)>& sink) const {
  const std::string& name = entries_[entry].Name;
  const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(zip_fopen_index(archive_.get(), entry, 0), zip_fclose);
  if (!file) Fail("\"" + name + "\" can't be unpacked");
  std::array<char, 65536> piece{};
  std::uint64_t total = 0;
  for (;;) {
    const zip_int64_t read = zip_fread(file.get(), piece.data(), piece.size());
    if (read < 0) Fail("\"" + name + "\" is broken");
    if (read == 0) return;
    total += static_cast<std::uint64_t>(read);
    if (total > limit) Fail("\"" + name + "\" is too large");
    if (!sink({piece.data(), static_cast<std::size_t>(read)})) return;
  }
}

std::string ZipReader::Read(std::size_t entry, std::uint64_t limit) const {
  std::string bytes;
  Copy(entry, limit, [&bytes](std::string_view piece) {
    bytes += piece;
    return true;
  });
  return bytes;
}

bool WriteZip(std::FILE* file, const std::vector<ZipContent>& contents, const std::function<bool(double)>& progress) {
  Target target{file, {}};
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_function_create(Serve, &target, &error);
  zip* archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, &error);
  if (archive == nullptr && source != nullptr) zip_source_free(source);
  const std::unique_ptr<zip_error_t, void (*)(zip_error_t*)> ended(&error, zip_error_fini);
  if (archive == nullptr) FailToWrite(error);
  Progress state{progress};
  try {
    for (const ZipContent& content : contents) Add(archive, content);
  } catch (const RuntimeError&) {
    zip_discard(archive);
    throw;
  }
  zip_register_progress_callback_with_state(archive, 0.01, Tell, nullptr, &state);
  zip_register_cancel_callback_with_state(archive, IsStopped, nullptr, &state);
  if (zip_close(archive) == 0) return true;
  const zip_error_t* why = zip_get_error(archive);
  zip_error_set(&error, zip_error_code_zip(why), zip_error_code_system(why));
  zip_discard(archive);
  if (state.Stopped) return false;
  FailToWrite(error);
}

}  // namespace pawnfield
