// The commands GALLERY (控件库) and GALLERYPAGE (控件页).
#pragma once

namespace gallery
{

// Opens the window.
void OpenGallery();

// Asks for the name or the title of a page and shows it.
void OpenGalleryPage();

} // namespace gallery
