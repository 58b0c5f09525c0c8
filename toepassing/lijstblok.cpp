#include "toepassing/lijstblok.h"

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

LijstBlok::LijstBlok(wxCheckListBox* lijst) : lijst(lijst)
{
    lijst->Freeze();
#ifdef __WXGTK__
    GtkTreeModel* m = gtk_tree_view_get_model(lijst->m_treeview);
    if (m != nullptr) {
        g_object_ref(m);
        gtk_tree_view_set_model(lijst->m_treeview, nullptr);
        model = m;
    }
#endif
}

LijstBlok::~LijstBlok()
{
#ifdef __WXGTK__
    if (model != nullptr) {
        GtkTreeModel* m = static_cast<GtkTreeModel*>(model);
        gtk_tree_view_set_model(lijst->m_treeview, m);
        g_object_unref(m);
    }
#endif
    lijst->Thaw();
}
