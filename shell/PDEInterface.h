// The dialog-extension interface between the Print dialog (the host) and the
// plug-in, and between the shell and its panels: a factory found by name, a
// query-interface by 16-byte identifier, and an object whose first field
// points to a table of ten operations. Host and plug-in are built together
// against the same core library, so the operations pass the project's own
// types (print session, property values, widgets) directly.
#pragma once

#include "settings/PrintSession.h"
#include "settings/PropertyValue.h"
#include "settings/Status.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

class QWidget;

namespace orvan {

// A 16-byte identifier, written as 8-4-4-4-12 hexadecimal digits.
struct Uuid
{
    std::array<std::uint8_t, 16> bytes{};

    static constexpr std::optional<Uuid> parse(std::string_view text);
    friend constexpr bool operator==(const Uuid&, const Uuid&) = default;
    friend constexpr auto operator<=>(const Uuid&, const Uuid&) = default;
};

constexpr std::optional<Uuid> Uuid::parse(std::string_view text)
{
    Uuid id;
    int nibbles = 0;
    for (const char c : text) {
        if (c == '-')
            continue;
        int v = -1;
        if (c >= '0' && c <= '9')
            v = c - '0';
        else if (c >= 'A' && c <= 'F')
            v = c - 'A' + 10;
        else if (c >= 'a' && c <= 'f')
            v = c - 'a' + 10;
        if (v < 0 || nibbles >= 32)
            return std::nullopt;
        id.bytes[nibbles / 2] =
            static_cast<std::uint8_t>(id.bytes[nibbles / 2] | (nibbles % 2 ? v : v << 4));
        ++nibbles;
    }
    if (nibbles != 32)
        return std::nullopt;
    return id;
}

// The plug-in type: the factory makes an instance only for this type.
inline constexpr Uuid kPDEPlugInType = *Uuid::parse("BDB091F4-E57F-11D3-B5CC-0050E4603277");
// The factory: registered as in use for every live instance.
inline constexpr Uuid kOrvanFactoryID = *Uuid::parse("60CAE14B-780C-425C-B60C-1826B9CA2C3B");
// The dialog-extension interface.
inline constexpr Uuid kDialogExtensionInterfaceID =
    *Uuid::parse("A996FD7E-B738-11D3-8519-0050E4603277");
// The generic base interface.
inline constexpr Uuid kBaseInterfaceID = *Uuid::parse("00000000-0000-0000-C000-000000000046");

using PDEContext = void*;

struct PDEAPIVersion
{
    std::uint32_t buildMajor;
    std::uint32_t buildMinor;
    std::uint32_t baseMajor;
    std::uint32_t baseMinor;
};

struct PDEInterfaceObject;

// The ten operations, in this order. Titles and values of GetSummaryText are
// arrays of strings that each panel creates when still Null and appends to.
struct PDEInterfaceTable
{
    Status (*Retain)(PDEInterfaceObject* self);
    Status (*Release)(PDEInterfaceObject** self);
    Status (*GetAPIVersion)(PDEInterfaceObject* self, PDEAPIVersion* version);
    Status (*Prolog)(PDEContext* context, std::uint32_t* creator, QString* kind, QString* title,
                     std::uint32_t* maxWidth, std::uint32_t* maxHeight);
    // parent is the pane to build the controls in; null when the dialog runs
    // headless, in which case the panel keeps its values in its model only.
    Status (*Initialize)(PDEContext context, std::uint32_t* flags, void* hostReference,
                         QWidget* parent, PrintSession* session);
    // direction false: write the tickets from the panel; true: set the panel from the tickets.
    Status (*Sync)(PDEContext context, PrintSession* session, bool direction);
    Status (*GetSummaryText)(PDEContext context, PropertyValue* titles, PropertyValue* values);
    Status (*Open)(PDEContext context);
    Status (*Close)(PDEContext context);
    Status (*Terminate)(PDEContext context, Status status);
};

// Every interface object starts with a pointer to its table.
struct PDEInterfaceObject
{
    const PDEInterfaceTable* table;
};

// The base interface of the factory instance: a reserved word, then
// query-interface, add-reference and release.
struct PlugInInstance;
struct PlugInInstanceTable
{
    void* reserved;
    Status (*QueryInterface)(PlugInInstance* self, Uuid interfaceID, void** object);
    std::uint32_t (*AddRef)(PlugInInstance* self);
    std::uint32_t (*Release)(PlugInInstance* self);
};
struct PlugInInstance
{
    const PlugInInstanceTable* table;
};

// Exported by the plug-in as "OrvanPDEPluginFactory".
using PlugInFactoryFunction = PlugInInstance* (*)(void* allocator, const Uuid* requestedType);
// Exported by the plug-in for each panel, e.g. "GetImageOptionsPanelInterface".
using PanelInterfaceFunction = Status (*)(PDEInterfaceObject** panel);

inline constexpr const char* kPlugInFactoryName = "OrvanPDEPluginFactory";
inline constexpr std::uint32_t kPaneKindCreator = 0x70646520; // 'pde '
// The kind every pane of this plug-in reports in Prolog, the shell's and its panels'.
inline const QString kOrvanPaneKind = QStringLiteral("com.orvan.print.pde.orvanfeatureskind");

} // namespace orvan
