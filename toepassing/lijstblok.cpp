#include "toepassing/lijstblok.h"

#include <algorithm>
#include <vector>

#ifdef __WXGTK__
#include <gtk/gtk.h>

namespace {

// The view's columns: the check box first, then the text.
std::vector<GtkTreeViewColumn*> geefKolommen(wxCheckListBox* lijst)
{
    std::vector<GtkTreeViewColumn*> kolommen;
    GList* alle = gtk_tree_view_get_columns(lijst->m_treeview);
    for (GList* k = alle; k != nullptr; k = k->next)
        kolommen.push_back(GTK_TREE_VIEW_COLUMN(k->data));
    g_list_free(alle);
    return kolommen;
}

// The check box column's width: what its cells need.
int geefNatuurlijkeBreedte(wxCheckListBox* lijst, GtkTreeViewColumn* kolom)
{
    int breedte = 0;
    GList* cellen = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(kolom));
    for (GList* c = cellen; c != nullptr; c = c->next) {
        int minimaal = 0, natuurlijk = 0;
        gtk_cell_renderer_get_preferred_width(GTK_CELL_RENDERER(c->data), GTK_WIDGET(lijst->m_treeview),
                                              &minimaal, &natuurlijk);
        breedte += natuurlijk;
    }
    g_list_free(cellen);
    return breedte;
}

// The room a text column needs around the text itself.
const int tekstMarge = 16;
// The width of a text column without entries; it expands to the view's.
const int geenBreedte = 1;
// How many of the longest texts in characters are measured in pixels.
const size_t proefGrootte = 32;

} // namespace
#endif

void leegLijst(wxCheckListBox* lijst)
{
#ifdef __WXGTK__
    // Taking the model from the view changes its selection; the list's own
    // selection handler must not look at the rows meanwhile.
    lijst->GTKDisableEvents();
    GtkTreeModel* model = gtk_tree_view_get_model(lijst->m_treeview);
    g_object_ref(model);
    gtk_tree_view_set_model(lijst->m_treeview, nullptr);
    gtk_list_store_clear(lijst->m_liststore);
    gtk_tree_view_set_model(lijst->m_treeview, model);
    g_object_unref(model);
    lijst->GTKEnableEvents();
    if (gtk_tree_view_get_fixed_height_mode(lijst->m_treeview))
        gtk_tree_view_column_set_fixed_width(geefKolommen(lijst).back(), geenBreedte);
    lijst->InvalidateBestSize();
#else
    lijst->Clear();
#endif
}

void maakRijenVast(wxCheckListBox* lijst)
{
#ifdef __WXGTK__
    const std::vector<GtkTreeViewColumn*> kolommen = geefKolommen(lijst);
    for (GtkTreeViewColumn* kolom : kolommen) {
        gtk_tree_view_column_set_sizing(kolom, GTK_TREE_VIEW_COLUMN_FIXED);
        gtk_tree_view_column_set_fixed_width(kolom, kolom == kolommen.back() ? geenBreedte
                                                                              : geefNatuurlijkeBreedte(lijst, kolom));
    }
    // the text column takes whatever room the view has left
    gtk_tree_view_column_set_expand(kolommen.back(), TRUE);
    gtk_tree_view_set_fixed_height_mode(lijst->m_treeview, TRUE);
#else
    wxUnusedVar(lijst);
#endif
}

void voegToeAanLijst(wxCheckListBox* lijst, const wxArrayString& nieuw)
{
    const unsigned int eerste = lijst->GetCount();
    lijst->Freeze();
    lijst->Append(nieuw);
    for (unsigned int i = eerste; i < lijst->GetCount(); ++i)
        lijst->Check(i);
    lijst->Thaw();
#ifdef __WXGTK__
    if (!gtk_tree_view_get_fixed_height_mode(lijst->m_treeview) || nieuw.empty())
        return;
    // Measuring every text would cost as much as the view's own pass; the
    // widest is among the longest in characters.
    std::vector<const wxString*> langste;
    for (const wxString& tekst : nieuw)
        langste.push_back(&tekst);
    const size_t proef = std::min(langste.size(), proefGrootte);
    std::partial_sort(langste.begin(), langste.begin() + static_cast<std::ptrdiff_t>(proef), langste.end(),
                      [](const wxString* a, const wxString* b) { return a->length() > b->length(); });
    int breedte = 0;
    for (size_t i = 0; i < proef; ++i)
        breedte = std::max(breedte, lijst->GetTextExtent(*langste[i]).x);
    GtkTreeViewColumn* tekstKolom = geefKolommen(lijst).back();
    breedte += tekstMarge;
    if (breedte > gtk_tree_view_column_get_fixed_width(tekstKolom))
        gtk_tree_view_column_set_fixed_width(tekstKolom, breedte);
#endif
}
