#include "ui/tarifs/VueTarifs.h"

#include "model/Catalogue.h"
VueTarifs::VueTarifs(const Catalogue &catalogue, Aujourdhui aujourdhui, QWidget *parent) : QWidget(parent), catalogue_(catalogue), aujourdhui_(std::move(aujourdhui)) {}
void VueTarifs::actualiser() {}
