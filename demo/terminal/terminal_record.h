#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace store::demo {

/// One scanned line as the handheld terminal holds it. Texts are UTF-8.
struct TerminalRecord {
  /// '0' purchase, '2' sale, '1' sale returned, '5' purchase returned, '3' stock survey, '4' price.
  char Kind = '0';
  std::string Partner;
  std::string Barcode;
  std::string Name;
  std::int64_t Quantity = 0;
  std::int64_t Price = 0;
};

/// The record's bytes on the line, in code page 949, without the frame around them. `number` counts
/// the records of a transfer from 1.
std::string RecordBytes(const TerminalRecord& record, int number);

/// Reads records from lines of "kind,partner,barcode,name,quantity,price"; empty lines and those
/// that begin with "#" are passed over. Throws std::runtime_error for a line that is no record.
std::vector<TerminalRecord> ReadRecords(const std::string& path);

/// Records of the demo franchise's own products, `count` of them: goods of a few suppliers, or with
/// a kind of sale of a few partners.
std::vector<TerminalRecord> MakeRecords(char kind, std::size_t count, std::size_t items,
                                        std::uint64_t seed);

}  // namespace store::demo
