#include "sim/sim_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/large_file.h"
#include "platform/text.h"

namespace pawnfield {

namespace {

std::string Backslashed(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  std::string result;
  for (const char c : path) {
    if (c != '\\' || result.empty() || result.back() != '\\') result += c;
  }
  while (!result.empty() && result.back() == '\\') result.pop_back();
  return result;
}

std::string Key(const std::string& path) { return ToLower(Backslashed(path)); }

std::string Parent(const std::string& key) {
  const auto slash = key.rfind('\\');
  return slash == std::string::npos ? std::string() : key.substr(0, slash);
}

std::string LastName(const std::string& path) {
  const std::string whole = Backslashed(path);
  return whole.substr(whole.rfind('\\') + 1);
}

bool EndsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

[[noreturn]] void Throw(int number) {
  switch (number) {
    case kErrorFileNotFound:
      throw RuntimeError(number, "File not found");
    case kErrorDeviceIo:
      throw RuntimeError(number, "Device I/O error");
    case kErrorDiskFull:
      throw RuntimeError(number, "Disk full");
    case kErrorPathAccess:
      throw RuntimeError(number, "Path/File access error");
    case kErrorPathNotFound:
      throw RuntimeError(number, "Path not found");
    default:
      throw RuntimeError(number, "Error " + std::to_string(number));
  }
}

}  // namespace

std::string SimFiles::Read(const std::string& path) const {
  const std::string key = Key(path);
  if (IsDenied(key)) Throw(kErrorPathAccess);
  const auto found = files_.find(key);
  if (found != files_.end()) {
    CheckSize(found->second.bytes.size());
    return found->second.bytes;
  }
  Throw(folders_.contains(Parent(key)) ? kErrorFileNotFound : kErrorPathNotFound);
}

void SimFiles::Write(const std::string& path, const std::string& bytes) {
  const std::string key = Key(path);
  if (failNextWrite_ != 0) Throw(std::exchange(failNextWrite_, 0));
  if (IsDenied(key) || folders_.contains(key)) Throw(kErrorPathAccess);
  if (!folders_.contains(Parent(key))) Throw(kErrorPathNotFound);
  files_[key] = {LastName(path), bytes};
}

bool SimFiles::CanOpen(const std::string& path) const {
  const std::string key = Key(path);
  return files_.contains(key) && !IsDenied(key);
}

bool SimFiles::FolderExists(const std::string& path) const { return folders_.contains(Key(path)); }

void SimFiles::CreateFolder(const std::string& path) {
  const std::string key = Key(path);
  if (IsDenied(key) || files_.contains(key)) Throw(kErrorPathAccess);
  if (!folders_.contains(Parent(key))) Throw(kErrorPathNotFound);
  folders_.insert(key);
}

std::vector<std::string> SimFiles::List(const std::string& folder, const std::string& extension) const {
  const std::string key = Key(folder);
  std::vector<std::string> names;
  if (IsDenied(key)) return names;
  for (const auto& [path, file] : files_) {
    if (Parent(path) == key && EndsWith(path, ToLower(extension))) names.push_back(file.name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

void SimFiles::Put(const std::string& path, const std::string& bytes) {
  const std::string key = Key(path);
  PutFolder(Parent(key));
  files_[key] = {LastName(path), bytes};
}

void SimFiles::PutFolder(const std::string& path) {
  for (std::string key = Key(path); !key.empty(); key = Parent(key)) folders_.insert(key);
}

void SimFiles::Remove(const std::string& path) { files_.erase(Key(path)); }

void SimFiles::Import(const std::string& realFolder, const std::string& path) {
  namespace fs = std::filesystem;
  PutFolder(path);
  for (const auto& entry : fs::recursive_directory_iterator(realFolder)) {
    const std::string target = path + "\\" + fs::relative(entry.path(), realFolder).string();
    if (entry.is_directory()) {
      PutFolder(target);
    } else if (entry.is_regular_file()) {
      std::ifstream in(entry.path(), std::ios::binary);
      Put(target, std::string(std::istreambuf_iterator<char>(in), {}));
    }
  }
}

void SimFiles::Deny(const std::string& path) { denied_.insert(Key(path)); }

}  // namespace pawnfield
