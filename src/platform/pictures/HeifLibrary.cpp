// SPDX-License-Identifier: MIT
#include "platform/pictures/HeifLibrary.h"

#include <QLibrary>

namespace {

// Of the interface that we are built against.
constexpr int kVersion = 1;

template <typename Function>
bool Resolve(QLibrary& library, const char* sName, Function& function) {
    function = reinterpret_cast<Function>(library.resolve(sName));
    return function != nullptr;
}

} // namespace

const HeifLibrary* HeifLibrary::Get() {
    static HeifLibrary library;
    static const bool s_bLoaded = library.Load();
    return s_bLoaded ? &library : nullptr;
}

bool HeifLibrary::Load() {
    QLibrary library(QStringLiteral("heif"), kVersion);
    return library.load() && Resolve(library, "heif_context_alloc", context_alloc) &&
           Resolve(library, "heif_context_free", context_free) &&
           Resolve(library, "heif_context_read_from_memory_without_copy", context_read_from_memory_without_copy) &&
           Resolve(library, "heif_context_get_primary_image_handle", context_get_primary_image_handle) &&
           Resolve(library, "heif_image_handle_release", image_handle_release) &&
           Resolve(library, "heif_image_handle_get_width", image_handle_get_width) &&
           Resolve(library, "heif_image_handle_get_height", image_handle_get_height) &&
           Resolve(library, "heif_image_handle_has_alpha_channel", image_handle_has_alpha_channel) &&
           Resolve(library, "heif_image_handle_get_raw_color_profile_size", image_handle_get_raw_color_profile_size) &&
           Resolve(library, "heif_image_handle_get_raw_color_profile", image_handle_get_raw_color_profile) &&
           Resolve(library, "heif_decode_image", decode_image) &&
           Resolve(library, "heif_image_release", image_release) &&
           Resolve(library, "heif_image_get_primary_width", image_get_primary_width) &&
           Resolve(library, "heif_image_get_primary_height", image_get_primary_height) &&
           Resolve(library, "heif_image_get_plane", image_get_plane);
}
