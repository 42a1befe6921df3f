#include "bench/notification/GObjectNotifier.h"

#include <climits>
#include <string>

namespace Bench
{

namespace
{

void GetNothing(GObject* /*object*/, guint /*property*/, GValue* /*value*/, GParamSpec* /*description*/)
{
}

void InitialiseClass(gpointer created, gpointer /*data*/)
{
    auto* const objectClass = static_cast<GObjectClass*>(created);
    objectClass->get_property = GetNothing;
    guint number = 0;
    for (const char* row : kNotifiedRows)
        g_object_class_install_property(
            objectClass, ++number,
            g_param_spec_int(row, nullptr, nullptr, INT_MIN, INT_MAX, 0, G_PARAM_READABLE));
}

GType RowsType()
{
    static const GType type =
        g_type_register_static_simple(G_TYPE_OBJECT, "BenchRows", sizeof(GObjectClass), InitialiseClass,
                                      sizeof(GObject), nullptr, G_TYPE_FLAG_NONE);
    return type;
}

void Hear(GObject* /*object*/, GParamSpec* /*description*/, gpointer heard)
{
    ++*static_cast<std::size_t*>(heard);
}

} // namespace

GObjectNotifier::GObjectNotifier(std::size_t listeners, ListenedName listened)
    : object(static_cast<GObject*>(g_object_new(RowsType(), nullptr))),
      notified(g_object_class_find_property(reinterpret_cast<GObjectClass*>(object->g_type_instance.g_class),
                                            kNotifiedRows.front()))
{
    for (std::size_t i = 0; i < listeners; ++i)
    {
        const std::string signal = std::string("notify::") + kNotifiedRows[ListenedRow(listened, i)];
        g_signal_connect_data(object, signal.c_str(), reinterpret_cast<GCallback>(Hear), &heard, nullptr,
                              static_cast<GConnectFlags>(0));
    }
}

GObjectNotifier::~GObjectNotifier()
{
    g_object_unref(object);
}

std::size_t GObjectNotifier::Notify()
{
    heard = 0;
    g_object_notify_by_pspec(object, notified);
    return heard;
}

} // namespace Bench
