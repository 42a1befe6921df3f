#pragma once

#include <glib-object.h>

#include <string>

namespace Bench
{

/// A GObject with the rows of an outline as its properties, which reads and writes the width by its name: by
/// the name that the class itself keeps, which is found without comparing letters, or by the text.
class GObjectOutline
{
public:
    GObjectOutline();
    GObjectOutline(const GObjectOutline&) = delete;
    GObjectOutline& operator=(const GObjectOutline&) = delete;
    ~GObjectOutline();

    [[nodiscard]] int ReadResolved() const { return Read(internedName); }

    [[nodiscard]] int ReadByText() const { return Read(name.c_str()); }

    void WriteResolved(int value) { Write(internedName, value); }

    void WriteByText(int value) { Write(name.c_str(), value); }

private:
    [[nodiscard]] int Read(const char* property) const;
    void Write(const char* property, int value);

    GObject* object;
    std::string name;
    const char* internedName; ///< Owned by the class.
};

} // namespace Bench
