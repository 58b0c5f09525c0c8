#include "toepassing/lijstblok.h"

#ifdef __WXGTK__
#include <gtk/gtk.h>
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
    lijst->InvalidateBestSize();
#else
    lijst->Clear();
#endif
}
