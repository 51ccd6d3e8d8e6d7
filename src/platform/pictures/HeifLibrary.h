// SPDX-License-Identifier: MIT
#pragma once

#include <libheif/heif.h>

/// The library that reads the photos of recent phones. It is loaded with the first picture that needs it: with the
/// codecs that it brings along, linking it would make every start of the program slower.
struct HeifLibrary {
    /// Nothing where this machine doesn't have it.
    static const HeifLibrary* Get();

    decltype(&heif_context_alloc) context_alloc = nullptr;
    decltype(&heif_context_free) context_free = nullptr;
    decltype(&heif_context_read_from_memory_without_copy) context_read_from_memory_without_copy = nullptr;
    decltype(&heif_context_get_primary_image_handle) context_get_primary_image_handle = nullptr;
    decltype(&heif_image_handle_release) image_handle_release = nullptr;
    decltype(&heif_image_handle_get_width) image_handle_get_width = nullptr;
    decltype(&heif_image_handle_get_height) image_handle_get_height = nullptr;
    decltype(&heif_image_handle_has_alpha_channel) image_handle_has_alpha_channel = nullptr;
    decltype(&heif_image_handle_get_raw_color_profile_size) image_handle_get_raw_color_profile_size = nullptr;
    decltype(&heif_image_handle_get_raw_color_profile) image_handle_get_raw_color_profile = nullptr;
    decltype(&heif_decode_image) decode_image = nullptr;
    decltype(&heif_image_release) image_release = nullptr;
    decltype(&heif_image_get_primary_width) image_get_primary_width = nullptr;
    decltype(&heif_image_get_primary_height) image_get_primary_height = nullptr;
    decltype(&heif_image_get_plane) image_get_plane = nullptr;

private:
    bool Load();
};
