// wxWidgets without a display: enough for wxImage and its file handlers.
#include <gtest/gtest.h>
#include <wx/image.h>
#include <wx/init.h>

namespace {

class WxOmgeving : public ::testing::Environment
{
public:
    void SetUp() override
    {
        ASSERT_TRUE(wxInitialize());
        wxImage::AddHandler(new wxPNGHandler);
        wxImage::AddHandler(new wxJPEGHandler);
    }
    void TearDown() override { wxUninitialize(); }
};

const auto* const omgeving = ::testing::AddGlobalTestEnvironment(new WxOmgeving);

} // namespace
