#pragma once

#include <string>

#include "forms/host.h"

class QPagedPaintDevice;

namespace store {

/// A4 with the margins that every printer can keep.
void UsePaper(QPagedPaintDevice& device);

/// Paints all pages of a document on a printer or into a file. The number of pages; 0 when the
/// device takes no painting.
int PaintDocument(const PrintedDocument& document, QPagedPaintDevice& device);

/// Asks for a printer and prints.
PrintFate PrintOnPrinter(const PrintedDocument& document);

/// Writes a PDF, its letters embedded, so that its text can be searched and copied.
bool WritePdf(const PrintedDocument& document, const std::string& path);

}  // namespace store
