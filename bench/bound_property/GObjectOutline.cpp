#include "bench/bound_property/GObjectOutline.h"

#include "bench/bound_property/OutlineRow.h"

#include <array>
#include <climits>

namespace Bench
{

namespace
{

/// The instance: what a GObject begins with, and the values of the rows.
struct OutlineInstance
{
    GObject parent;
    std::array<int, kOutlineRows.size()> values;
};

/// Numbers of properties begin at 1.
int& ValueOf(GObject* object, guint property)
{
    return reinterpret_cast<OutlineInstance*>(object)->values[property - 1];
}

void GetProperty(GObject* object, guint property, GValue* value, GParamSpec* /*description*/)
{
    g_value_set_int(value, ValueOf(object, property));
}

void SetProperty(GObject* object, guint property, const GValue* value, GParamSpec* /*description*/)
{
    ValueOf(object, property) = g_value_get_int(value);
}

void InitialiseClass(gpointer created, gpointer /*data*/)
{
    auto* const objectClass = static_cast<GObjectClass*>(created);
    objectClass->get_property = GetProperty;
    objectClass->set_property = SetProperty;
    // Nobody is told of a write here, as with the other contenders.
    constexpr auto kFlags = static_cast<GParamFlags>(static_cast<int>(G_PARAM_READWRITE) |
                                                     static_cast<int>(G_PARAM_EXPLICIT_NOTIFY) |
                                                     static_cast<int>(G_PARAM_STATIC_STRINGS));
    guint number = 0;
    for (const char* row : kOutlineRows)
        g_object_class_install_property(objectClass, ++number,
                                        g_param_spec_int(row, nullptr, nullptr, INT_MIN, INT_MAX, 0, kFlags));
}

GType OutlineType()
{
    static const GType type =
        g_type_register_static_simple(G_TYPE_OBJECT, "BenchOutline", sizeof(GObjectClass), InitialiseClass,
                                      sizeof(OutlineInstance), nullptr, G_TYPE_FLAG_NONE);
    return type;
}

} // namespace

GObjectOutline::GObjectOutline()
    : object(static_cast<GObject*>(g_object_new(OutlineType(), nullptr))),
      name(kOutlineRows[kWidthRow]),
      internedName(g_param_spec_get_name(g_object_class_find_property(
          reinterpret_cast<GObjectClass*>(object->g_type_instance.g_class), kOutlineRows[kWidthRow])))
{
}

GObjectOutline::~GObjectOutline()
{
    g_object_unref(object);
}

int GObjectOutline::Read(const char* property) const
{
    GValue value = G_VALUE_INIT;
    g_object_get_property(object, property, &value);
    return g_value_get_int(&value);
}

void GObjectOutline::Write(const char* property, int newValue)
{
    GValue value = G_VALUE_INIT;
    g_value_init(&value, G_TYPE_INT);
    g_value_set_int(&value, newValue);
    g_object_set_property(object, property, &value);
}

} // namespace Bench
