// Rules of the protocol that containers rely on without saying so.
#include "pictures.h"

namespace {

TEST(Rules, a_played_metafile_leaves_the_player_s_saved_levels) {
  STGMEDIUM taken = data(outside::create(classes[0]).Get(), CF_METAFILEPICT, TYMED_MFPICT);
  const auto* picture = static_cast<METAFILEPICT*>(GlobalLock(taken.hMetaFilePict));
  const HDC dc = CreateCompatibleDC(nullptr);
  SaveDC(dc);
  SaveDC(dc);
  EXPECT_TRUE(PlayMetaFile(dc, picture->hMF));
  EXPECT_EQ(SaveDC(dc), 3);
  DeleteDC(dc);
  GlobalUnlock(taken.hMetaFilePict);
  ReleaseStgMedium(&taken);
}

TEST(Rules, only_what_was_saved_in_its_place_is_clean) {
  const struct {
    BOOL same_as_load;
    bool into_new;
    HRESULT dirty;
  } rows[] = {{FALSE, false, S_OK}, {FALSE, true, S_FALSE}, {TRUE, false, S_FALSE}};
  for (const auto& [same_as_load, into_new, dirty] : rows) {
    const auto control = outside::create(classes[1]);
    const auto storing = as<IPersistStorage>(control.Get());
    const auto file = new_storage();
    EXPECT_EQ(storing->InitNew(file.Get()), S_OK);
    resize(control.Get(), 3000, 3000);
    EXPECT_EQ(storing->Save(file.Get(), same_as_load), S_OK);
    EXPECT_EQ(storing->HandsOffStorage(), S_OK);
    EXPECT_EQ(storing->SaveCompleted(into_new ? file.Get() : nullptr), S_OK);
    EXPECT_EQ(storing->IsDirty(), dirty) << same_as_load << into_new;
  }
}

TEST(Rules, a_click_brings_the_focus_back_and_closing_sends_the_data_asked_for_then) {
  StrictContainer container;
  container.user_mode = true;
  const auto control = outside::create(classes[2]);
  const auto object = as<IOleObject>(control.Get());
  object->SetClientSite(&container);
  object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &container, 0, container.form, nullptr);
  SetFocus(container.form);
  SendMessageW(container.window(), WM_LBUTTONDOWN, 0, 0);
  EXPECT_EQ(GetFocus(), container.window());
  FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  DWORD connection = 0;
  const auto source = as<IDataObject>(control.Get());
  EXPECT_EQ(source->DAdvise(&format, ADVF_DATAONSTOP | ADVF_NODATA, &container, &connection), S_OK);
  container.take_log();
  object->Close(OLECLOSE_NOSAVE);
  EXPECT_NE(container.take_log().find("OnDataChange"), std::string::npos);
  object->SetClientSite(nullptr);
}

TEST(Rules, the_view_says_the_same_to_every_question) {
  const auto control = outside::create(classes[0]);
  const auto view = as<IViewObjectEx>(control.Get());
  QACONTAINER container = {};
  container.cbSize = sizeof container;
  QACONTROL answer = {};
  answer.cbSize = sizeof answer;
  EXPECT_EQ(as<IQuickActivate>(control.Get())->QuickActivate(&container, &answer), S_OK);
  DWORD status = 0, misc = 0, hit = 0;
  EXPECT_EQ(view->GetViewStatus(&status), S_OK);
  EXPECT_EQ(as<IOleObject>(control.Get())->GetMiscStatus(DVASPECT_CONTENT, &misc), S_OK);
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
