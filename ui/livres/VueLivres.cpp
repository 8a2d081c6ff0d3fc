#include "ui/livres/VueLivres.h"

#include "model/Catalogue.h"
VueLivres::VueLivres(const Catalogue &catalogue, ImagesCouvertures &images, QWidget *parent) : QWidget(parent), catalogue_(catalogue), images_(images) {}
void VueLivres::actualiser() {}
