// Build tool: stores a PNG as a JPEG of the given quality (the splash screen
// must be a JPEG; the SVG renderer writes PNG only).
//
//   klavermol-alsjpeg <in.png> <out.jpg> <quality 1-100>
#include <wx/filefn.h>
#include <wx/image.h>
#include <wx/init.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s <in.png> <out.jpg> <quality>\n", argv[0]);
        return 2;
    }
    wxInitializer wx;
    wxImage::AddHandler(new wxPNGHandler);
    wxImage::AddHandler(new wxJPEGHandler);
    wxImage beeld;
    if (!wx.IsOk() || !beeld.LoadFile(argv[1], wxBITMAP_TYPE_PNG)) {
        std::fprintf(stderr, "%s: cannot read %s\n", argv[0], argv[1]);
        return 1;
    }
    beeld.SetOption(wxIMAGE_OPTION_QUALITY, std::atoi(argv[3]));
    const wxString tijdelijk = wxString(argv[2]) + ".tmp";
    if (!beeld.SaveFile(tijdelijk, wxBITMAP_TYPE_JPEG) || !wxRenameFile(tijdelijk, argv[2])) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], argv[2]);
        return 1;
    }
    return 0;
}
