#include "platform/record_store/Page_Check.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <vector>

#include "platform/record_store/Engine.h"

namespace Record_Store {
namespace {

// The layout of an encrypted page: the content, a start vector, the seal over both and over the
// page's number, and a filling. The first page begins with the salt of the key in place of content.
constexpr std::size_t salt_size = 16;
constexpr std::size_t vector_size = 16;
constexpr std::size_t seal_size = 20;
constexpr std::size_t reserve = 48;
constexpr std::size_t key_size = 32;
constexpr int key_rounds = 64000;
constexpr int seal_key_rounds = 2;
constexpr unsigned char seal_salt_mask = 0x3A;
constexpr std::size_t pages_to_try = 64;

using Page = std::array<unsigned char, Page_Size>;
using Salt = std::array<unsigned char, salt_size>;
using Secret = std::array<unsigned char, key_size>;

bool Read_Page(std::ifstream& file, Page& page) {
  file.read(reinterpret_cast<char*>(page.data()), Page_Size);
  return file.gcount() == Page_Size;
}

Secret Derive(std::string_view from, const Salt& salt, int rounds) {
  Secret secret{};
  PKCS5_PBKDF2_HMAC_SHA1(from.data(), static_cast<int>(from.size()), salt.data(), salt_size, rounds,
                         key_size, secret.data());
  return secret;
}

Secret Seal_Key(std::string_view password, Salt salt) {
  const Secret key = Derive(password, salt, key_rounds);
  for (unsigned char& byte : salt) byte ^= seal_salt_mask;
  return Derive({reinterpret_cast<const char*>(key.data()), key.size()}, salt, seal_key_rounds);
}

bool Seal_Fits(const Page& page, std::uint32_t number, const Secret& seal_key) {
  const std::size_t begin = number == 1 ? salt_size : 0;
  const std::size_t end = Page_Size - reserve + vector_size;
  std::vector<unsigned char> sealed(page.data() + begin, page.data() + end);
  for (int shift = 0; shift < 32; shift += 8) {
    sealed.push_back(static_cast<unsigned char>(number >> shift));
  }
  std::array<unsigned char, EVP_MAX_MD_SIZE> seal{};
  HMAC(EVP_sha1(), seal_key.data(), key_size, sealed.data(), sealed.size(), seal.data(), nullptr);
  return std::equal(seal.data(), seal.data() + seal_size, page.data() + end);
}

}  // namespace

bool Looks_Encrypted(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  const auto size = static_cast<std::streamoff>(file.tellg());
  if (size <= 0 || size % Page_Size != 0) return false;
  file.seekg(0);
  Page page{};
  if (!Read_Page(file, page)) return false;
  const auto high = std::ranges::count_if(page, [](unsigned char byte) { return byte >= 0x80; });
  constexpr std::ptrdiff_t half = Page_Size / 2;
  constexpr std::ptrdiff_t tolerance = Page_Size / 10;
  return high > half - tolerance && high < half + tolerance;
}

bool Some_Page_Fits(const std::string& path, std::string_view password) {
  std::ifstream file(path, std::ios::binary);
  Page page{};
  if (!Read_Page(file, page)) return false;
  Salt salt{};
  std::copy_n(page.begin(), salt_size, salt.begin());
  const Secret seal_key = Seal_Key(password, salt);
  std::uint32_t number = 1;
  do {
    if (Seal_Fits(page, number, seal_key)) return true;
  } while (number++ < pages_to_try && Read_Page(file, page));
  return false;
}

}  // namespace Record_Store
