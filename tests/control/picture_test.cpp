// The picture box, in a window, in any device context and in metafiles; and what the view says of it.
#include <algorithm>

#include "pictures.h"

namespace {

constexpr COLORREF background = RGB(10, 200, 30);

Pixels picture_of(IUnknown* control) {
  return drawn([&](HDC dc) { EXPECT_EQ(draw(control, dc, {0, 0, side, side}), S_OK); });
}

TEST(Picture, is_the_class_s_bitmap_in_a_sunken_box_on_the_container_s_colour) {
  constexpr int dark[] = {COLOR_BTNSHADOW, COLOR_3DDKSHADOW}, light[] = {COLOR_BTNHIGHLIGHT, COLOR_3DLIGHT};
  for (const auto& ids : classes) {
    StrictContainer container;
    const auto control = create(ids);
    as<IOleObject>(control)->SetClientSite(&container);
    const auto on_grey = picture_of(control.Get());
    container.background = background;
    EXPECT_EQ(as<IOleControl>(control)->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR), S_OK);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HANDLE bitmap = LoadImageW(library(), MAKEINTRESOURCEW(30000 + (&ids - classes)), IMAGE_BITMAP, 0,
                                     0, LR_CREATEDIBSECTION);
    const HGDIOBJ earlier = SelectObject(dc, bitmap);
    const COLORREF none = GetPixel(dc, 0, 14);
    const auto expected = [&](int x, int y, COLORREF behind) {
      const int edge = std::min({x, y, side - 1 - x, side - 1 - y});
      if (edge < 2) return GetSysColor(x == edge || y == edge ? dark[edge] : light[edge]);
      const COLORREF dot = GetPixel(dc, x - 6, y - 6);
      return dot == none || dot == CLR_INVALID ? behind : dot;
    };
    const auto picture = picture_of(control.Get());
    for (int i = 0; i < side * side; ++i) {
      const int x = i % side, y = i / side;
      ASSERT_EQ(picture[i], as_pixel(expected(x, y, background))) << ids.name << " " << x << " " << y;
      ASSERT_EQ(on_grey[i], as_pixel(expected(x, y, GetSysColor(COLOR_BTNFACE)))) << x << " " << y;
    }
    SelectObject(dc, earlier);
    DeleteObject(bitmap);
    DeleteDC(dc);
    as<IOleObject>(control)->SetClientSite(nullptr);
  }
}

TEST(Picture, is_the_same_in_a_window_in_metafiles_and_in_other_units) {
  StrictContainer container;
  const auto control = create(classes[1]);
  const auto object = as<IOleObject>(control);
  object->SetClientSite(&container);
  object->DoVerb(OLEIVERB_SHOW, nullptr, &container, 0, container.form, nullptr);
  const HWND window = container.window();
  const auto in_units = [&](HDC dc, LONG width, LONG height) {
    map(dc, {width, height});
    draw(control.Get(), dc, {0, 0, width, height});
  };
  const std::function<void(HDC)> ways[] = {
      [&](HDC dc) {
        draw(control.Get(), dc, {0, 0, side, side}, DVASPECT_CONTENT, 0);
      },
      [&](HDC dc) { SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT); },
      [&](HDC dc) { play_metafile(control.Get(), dc); },
      [&](HDC dc) {
        STGMEDIUM taken = data(control.Get(), CF_ENHMETAFILE, TYMED_ENHMF);
        const RECT bounds = {0, 0, side, side};
        PlayEnhMetaFile(dc, taken.hEnhMetaFile, &bounds);
        ReleaseStgMedium(&taken);
      },
      [&](HDC dc) { in_units(dc, side * 10, side * 10); },
      [&](HDC dc) { in_units(dc, side * 10, -side * 10); }};
  for (const auto& way : ways) EXPECT_EQ(drawn(way), picture_of(control.Get())) << &way - ways;
  object->SetClientSite(nullptr);
}

TEST(Picture, is_drawn_where_there_is_little_room_and_nowhere_else) {
  const auto control = create(classes[2]);
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
  const auto control = create(classes[0]);
  const auto data = as<IDataObject>(control);
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

TEST(View, says_the_same_to_every_question) {
  const auto control = create(classes[0]);
  const auto view = as<IViewObjectEx>(control);
  QACONTAINER container = {};
  QACONTROL answer = {};
  container.cbSize = sizeof container;
  answer.cbSize = sizeof answer;
  EXPECT_EQ(as<IQuickActivate>(control)->QuickActivate(&container, &answer), S_OK);
  DWORD status = 0, misc = 0, hit = 0;
  EXPECT_EQ(view->GetViewStatus(&status), S_OK);
  EXPECT_EQ(as<IOleObject>(control)->GetMiscStatus(DVASPECT_CONTENT, &misc), S_OK);
  EXPECT_EQ(std::pair(answer.dwViewStatus, answer.dwMiscStatus), std::pair(status, misc));
  RECTL area = {};
  EXPECT_EQ(SUCCEEDED(view->GetRect(DVASPECT_OPAQUE, &area)), (status & VIEWSTATUS_DVASPECTOPAQUE) != 0);
  const RECT bounds = {0, 0, 10, 10}, beside = {10, 10, 20, 20};
  EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {9, 9}, 0, &hit), S_OK);
  EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
  EXPECT_EQ(view->QueryHitRect(DVASPECT_CONTENT, &bounds, &beside, 0, &hit), S_OK);
  EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_OUTSIDE));
}

}  // namespace
