// Saving and loading a control's extent by each interface that containers use.
#include "hosted.h"

namespace {

SIZEL extent_of(IUnknown* control) {
  SIZEL extent = {};
  EXPECT_EQ(as<IOleObject>(control)->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  return extent;
}

ComPtr<IDispatch> sized(const outside::ClassIds& ids, LONG width, LONG height) {
  const auto control = outside::create(ids);
  EXPECT_EQ(resize(control.Get(), width, height), S_OK);
  return control;
}

TEST(Persistence, brings_the_extent_back_by_every_interface) {
  for (const auto& ids : classes) {
    const auto saved = sized(ids, 4321, 1234);
    const auto stream = stream_of("");
    const auto file = new_storage();
    Bag bag;
    const auto streaming = as<IPersistStreamInit>(saved.Get());
    const auto storing = as<IPersistStorage>(saved.Get());
    EXPECT_EQ(storing->Save(file.Get(), FALSE), S_OK);
    EXPECT_EQ(as<IPersistPropertyBag>(saved.Get())->Save(&bag, FALSE, TRUE), S_OK);
    EXPECT_EQ(streaming->IsDirty(), S_OK) << "saved without being told to forget it";
    EXPECT_EQ(streaming->Save(stream.Get(), TRUE), S_OK);
    EXPECT_EQ(streaming->IsDirty(), S_FALSE);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const auto from_stream = outside::create(ids), from_file = outside::create(ids),
               from_bag = outside::create(ids);
    EXPECT_EQ(as<IPersistStreamInit>(from_stream.Get())->Load(stream.Get()), S_OK);
    EXPECT_EQ(as<IPersistStorage>(from_file.Get())->Load(file.Get()), S_OK);
    EXPECT_EQ(as<IPersistPropertyBag>(from_bag.Get())->Load(&bag, nullptr), S_OK);
    for (const auto& loaded : {from_stream, from_file, from_bag}) {
      const SIZEL extent = extent_of(loaded.Get());
      EXPECT_TRUE(extent.cx == 4321 && extent.cy == 1234) << extent.cx << " " << extent.cy;
      EXPECT_EQ(as<IPersistStreamInit>(loaded.Get())->IsDirty(), S_FALSE);
    }
    CLSID id = {};
    EXPECT_EQ(as<IPersist>(saved.Get())->GetClassID(&id), S_OK);
    EXPECT_EQ(id, outside::guid(ids.class_id));
    EXPECT_EQ(streaming->InitNew(), S_OK);
    EXPECT_EQ(extent_of(saved.Get()).cx, 741);
  }
}

TEST(Persistence, refuses_what_is_damaged_and_stays_usable) {
  const auto whole = stream_of("");
  EXPECT_EQ(as<IPersistStreamInit>(sized(classes[0], 1000, 900).Get())->Save(whole.Get(), TRUE), S_OK);
  whole->Seek({}, STREAM_SEEK_SET, nullptr);
  char bytes[13] = {};
  ULONG size = 0;
  whole->Read(bytes, sizeof bytes, &size);
  const std::string record(bytes, size);
  ASSERT_EQ(size, 12u);
  std::vector<std::pair<std::string, HRESULT>> rows;
  for (size_t length = 0; length < record.size(); ++length)
    rows.emplace_back(record.substr(0, length), STG_E_READFAULT);
  for (const char* extent : {"\xFF\xFF\xFF\xFF", "\xFF\xFF\xFF\x7F"}) {
    rows.emplace_back(record.substr(0, 4) + std::string(extent, 4) + record.substr(8), STG_E_DOCFILECORRUPT);
    rows.emplace_back(record.substr(0, 8) + std::string(extent, 4), STG_E_DOCFILECORRUPT);
  }
  rows.emplace_back("X" + record.substr(1), STG_E_DOCFILECORRUPT);
  rows.emplace_back(record, S_OK);
  for (const auto& [bytes, status] : rows) {
    const auto control = sized(classes[0], 2222, 1111), stored = sized(classes[0], 2222, 1111);
    EXPECT_EQ(as<IPersistStreamInit>(control.Get())->Load(stream_of(bytes).Get()), status) << bytes.size();
    const auto file = new_storage();
    ComPtr<IStream> stream;
    ASSERT_EQ(file->CreateStream(L"Contents", STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0, &stream), S_OK);
    stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    stream.Reset();
    EXPECT_EQ(as<IPersistStorage>(stored.Get())->Load(file.Get()), status) << bytes.size();
    for (const auto& one : {control, stored}) {
      EXPECT_EQ(extent_of(one.Get()).cx, status == S_OK ? 1000 : 2222);
      EXPECT_TRUE(is_usable(one.Get()));
    }
  }
  EXPECT_EQ(as<IPersistStorage>(outside::create(classes[0]).Get())->Load(new_storage().Get()),
            STG_E_FILENOTFOUND);
}

TEST(Persistence, takes_an_empty_bag_for_the_defaults_and_refuses_a_wrong_one) {
  const struct {
    std::map<std::wstring, std::wstring> texts;
    HRESULT failure, status;
    LONG width;
  } rows[] = {{{}, S_OK, S_OK, 741},
              {{{L"_ExtentX", L"900"}}, S_OK, S_OK, 900},
              {{{L"_ExtentX", L"wide"}}, S_OK, STG_E_DOCFILECORRUPT, 2222},
              {{{L"_ExtentX", L"900"}, {L"_ExtentY", L"-1"}}, S_OK, STG_E_DOCFILECORRUPT, 2222},
              {{}, E_ACCESSDENIED, E_ACCESSDENIED, 2222}};
  for (const auto& [texts, failure, status, width] : rows) {
    Bag bag;
    bag.texts = texts;
    bag.failure = failure;
    const auto control = sized(classes[0], 2222, 1111);
    EXPECT_EQ(as<IPersistPropertyBag>(control.Get())->Load(&bag, nullptr), status);
    EXPECT_EQ(extent_of(control.Get()).cx, width);
    EXPECT_TRUE(is_usable(control.Get()));
    EXPECT_EQ(as<IPersistPropertyBag>(control.Get())->Save(&bag, TRUE, TRUE), failure);
  }
}

}  // namespace
