// The picture box: the same picture in a window, in any device context, in metafiles.
#include <set>

#include "pictures.h"

namespace {

constexpr COLORREF background = RGB(10, 200, 30);

DWORD as_pixel(COLORREF color) { return RGB(GetBValue(color), GetGValue(color), GetRValue(color)); }

void play_enhanced_metafile(IUnknown* control, HDC dc) {
  STGMEDIUM taken = data(control, CF_ENHMETAFILE, TYMED_ENHMF);
  const RECT bounds = {0, 0, side, side};
  PlayEnhMetaFile(dc, taken.hEnhMetaFile, &bounds);
  ReleaseStgMedium(&taken);
}

TEST(Picture, is_the_class_s_bitmap_in_a_sunken_box_on_the_container_s_colour) {
  std::set<Pixels> pictures;
  for (const auto& ids : classes) {
    StrictContainer container;
    container.background = background;
    const auto control = outside::create(ids);
    as<IOleObject>(control.Get())->SetClientSite(&container);
    const auto picture = drawn([&](HDC dc) { EXPECT_EQ(draw(control.Get(), dc, {0, 0, side, side}), S_OK); });
    const auto expected = drawn([&](HDC dc) {
      const auto fill = [&](RECT area, COLORREF color) {
        const HBRUSH brush = CreateSolidBrush(color);
        FillRect(dc, &area, brush);
        DeleteObject(brush);
      };
      RECT area = {0, 0, side, side};
      for (const auto& [dark, light] :
           {std::pair{COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT}, {COLOR_3DDKSHADOW, COLOR_3DLIGHT}}) {
        fill(area, GetSysColor(light));
        fill({area.left, area.top, area.right, area.top + 1}, GetSysColor(dark));
        fill({area.left, area.top, area.left + 1, area.bottom}, GetSysColor(dark));
        InflateRect(&area, -1, -1);
      }
      fill(area, background);
      const HANDLE bitmap = LoadImageW(outside::library(), MAKEINTRESOURCEW(30000 + (&ids - classes)),
                                       IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
      const HDC source = CreateCompatibleDC(nullptr);
      const HGDIOBJ earlier = SelectObject(source, bitmap);
      const COLORREF none = GetPixel(source, 0, 14);
      for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 16; ++x)
          if (GetPixel(source, x, y) != none) SetPixelV(dc, 6 + x, 6 + y, GetPixel(source, x, y));
      SelectObject(source, earlier);
      DeleteDC(source);
      DeleteObject(bitmap);
    });
    EXPECT_EQ(picture, expected);
    EXPECT_EQ(picture[3 * side + 3], as_pixel(background));
    pictures.insert(picture);
    as<IOleObject>(control.Get())->SetClientSite(nullptr);
  }
  EXPECT_EQ(pictures.size(), 3u);
}

TEST(Picture, is_the_same_in_a_window_in_metafiles_and_in_other_units) {
  StrictContainer container;
  const auto control = outside::create(classes[1]);
  const auto object = as<IOleObject>(control.Get());
  object->SetClientSite(&container);
  object->DoVerb(OLEIVERB_SHOW, nullptr, &container, 0, container.form, nullptr);
  const HWND window = container.window();
  const auto expected = drawn([&](HDC dc) { draw(control.Get(), dc, {0, 0, side, side}); });
  const std::pair<const char*, std::function<void(HDC)>> ways[] = {
      {"index 0", [&](HDC dc) { draw(control.Get(), dc, {0, 0, side, side}, DVASPECT_CONTENT, 0); }},
      {"window",
       [&](HDC dc) { SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT); }},
      {"metafile", [&](HDC dc) { play_metafile(control.Get(), dc); }},
      {"enhanced metafile", [&](HDC dc) { play_enhanced_metafile(control.Get(), dc); }},
      {"ten units a pixel",
       [&](HDC dc) {
         map(dc, {side * 10, side * 10});
         draw(control.Get(), dc, {0, 0, side * 10, side * 10});
       }},
      {"upwards", [&](HDC dc) {
         map(dc, {side * 10, -side * 10});
         draw(control.Get(), dc, {0, 0, side * 10, -side * 10});
       }}};
  for (const auto& [name, way] : ways) {
    const auto pixels = drawn(way);
    size_t different = 0;
    for (size_t i = 0; i < pixels.size(); ++i) different += pixels[i] != expected[i];
    EXPECT_EQ(different, 0u) << name;
  }
  object->SetClientSite(nullptr);
}

TEST(Picture, follows_the_container_s_colour_and_is_drawn_where_there_is_little_room) {
  StrictContainer container;
  const auto control = outside::create(classes[2]);
  as<IOleObject>(control.Get())->SetClientSite(&container);
  const auto colour = [&] {
    return drawn([&](HDC dc) { draw(control.Get(), dc, {0, 0, side, side}); })[3 * side + 3];
  };
  EXPECT_EQ(colour(), as_pixel(GetSysColor(COLOR_BTNFACE)));
  container.background = background;
  EXPECT_EQ(as<IOleControl>(control.Get())->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR), S_OK);
  EXPECT_EQ(colour(), as_pixel(background));
  as<IOleObject>(control.Get())->SetClientSite(nullptr);
  // Nothing outside the bounds, whatever the size.
  for (const int size : {1, 2, 4, 5, 12}) {
    resize(control.Get(), size * 2540 / 96 + 1, size * 2540 / 96 + 1);
    const auto pixels = drawn([&](HDC dc) { draw(control.Get(), dc, {2, 2, 2 + size, 2 + size}); });
    for (int i = 0; i < side * side; ++i) {
      const bool inside = i % side >= 2 && i % side < 2 + size && i / side >= 2 && i / side < 2 + size;
      ASSERT_TRUE(inside || pixels[i] == 0) << size << ": " << i;
    }
    EXPECT_NE(pixels[2 * side + 2], 0u) << size;
  }
  const HDC dc = CreateCompatibleDC(nullptr);
  EXPECT_EQ(draw(control.Get(), dc, {0, 0, 9, 9}, DVASPECT_ICON), DV_E_DVASPECT);
  EXPECT_EQ(draw(control.Get(), dc, {0, 0, 9, 9}, DVASPECT_OPAQUE, 0), DV_E_LINDEX);
  EXPECT_EQ(draw(control.Get(), nullptr, {0, 0, 9, 9}), E_INVALIDARG);
  DeleteDC(dc);
}

TEST(Data, lists_and_gives_the_two_metafiles_only) {
  const auto control = outside::create(classes[0]);
  const auto data = as<IDataObject>(control.Get());
  ComPtr<IEnumFORMATETC> formats;
  ASSERT_EQ(data->EnumFormatEtc(DATADIR_GET, &formats), S_OK);
  FORMATETC found[3] = {};
  ULONG count = 0;
  EXPECT_EQ(formats->Next(3, found, &count), S_FALSE);
  ASSERT_EQ(count, 2u);
  for (ULONG i = 0; i < count; ++i) {
    for (const LONG index : {-1, 0, 7}) {
      found[i].lindex = index;
      EXPECT_EQ(data->QueryGetData(&found[i]), S_OK) << i << ": " << index;
    }
  }
  STGMEDIUM medium = {};
  found[0].cfFormat = CF_BITMAP;
  EXPECT_EQ(data->GetData(&found[0], &medium), DV_E_FORMATETC);
  found[1].tymed = TYMED_HGLOBAL;
  EXPECT_EQ(data->GetData(&found[1], &medium), DV_E_TYMED);
}

}  // namespace
