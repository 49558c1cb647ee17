#pragma once

#include <QMetaEnum>
#include <QObject>

/**
 * The article class keywords as QMetaEnum knows them: in lower case, since its look-ups are exact, and
 * without the keywords that are only read where it writes. Its values are ints, so those above bit 28 have
 * stand-ins that are in no union of the others.
 */
namespace KTArticleClassMetaEnum {
Q_NAMESPACE

enum Written : int {
    none = 0,
    book = 1 << 0,
    doublepage = 1 << 10,
    normal_calendar = 1 << 1,
    agenda = 1 << 2,
    calendar = 6,
    simple_gift = 1 << 7,
    gift = 16320,
    card = 1 << 3,
    deko = 1 << 4,
    foto = 1 << 15,
    premiumfoto = 1 << 16,
    posterfoto = 1 << 17,
    photo = 229376,
    fee = 3932160,
    canvas = 1 << 5,
    art_print = 1 << 6,
    advent_calendar = 1 << 8,
    playing_card = 1 << 9,
    picture_box = 1 << 11,
    nature_bundle = 1 << 12,
    puzzle = 1 << 13,
    slipcase = 1 << 14,
    fullrange = 32767,
    expressfee = 1 << 18,
    transferfee = 1 << 19,
    paymentfee = 1 << 20,
    shipmentmethodfee = 1 << 21,
    article = 262143,
    add_on = 1 << 29,
    design_addon = 1 << 25,
    frame_addon = 1 << 27,
    frame_construction = 1 << 28,
    wallholder_addon = 3 << 29,
    pagepackage_addon = 1 << 22,
    video_addon = 1 << 24,
    locrmap_addon = 1 << 26,
    envelope_addon = add_on + 1,
    giftbox_addon = add_on + 2,
    spotcolor_addon = 1 << 23,
    giftwrap_addon = add_on + 3,
    matt_cover_addon = add_on + 4,
    flyleafcolor = add_on + 5,
    pre_assembled = add_on + 6,
};
Q_ENUM_NS(Written)

namespace Reading {
Q_NAMESPACE

enum Read : int {
    none = Written::none,
    unknown = none,
    book = Written::book,
    fotobook = book,
    doublepage = Written::doublepage,
    normal_calendar = Written::normal_calendar,
    agenda = Written::agenda,
    calendar = Written::calendar,
    simple_gift = Written::simple_gift,
    gift = Written::gift,
    card = Written::card,
    deko = Written::deko,
    poster = deko,
    frame = deko,
    foto = Written::foto,
    premiumfoto = Written::premiumfoto,
    posterfoto = Written::posterfoto,
    photo = Written::photo,
    fee = Written::fee,
    canvas = Written::canvas,
    art_print = Written::art_print,
    advent_calendar = Written::advent_calendar,
    playing_card = Written::playing_card,
    playingcard = playing_card,
    picture_box = Written::picture_box,
    nature_bundle = Written::nature_bundle,
    puzzle = Written::puzzle,
    slipcase = Written::slipcase,
    fullrange = Written::fullrange,
    expressfee = Written::expressfee,
    transferfee = Written::transferfee,
    paymentfee = Written::paymentfee,
    shipmentmethodfee = Written::shipmentmethodfee,
    express_fee = expressfee,
    transfer = transferfee,
    pay_method_fee = paymentfee,
    shipment_method_fee = shipmentmethodfee,
    article = Written::article,
    add_on = Written::add_on,
    design_addon = Written::design_addon,
    frame_addon = Written::frame_addon,
    frame_construction = Written::frame_construction,
    wallholder_addon = Written::wallholder_addon,
    wall_holder_gallery_print = wallholder_addon,
    pagepackage_addon = Written::pagepackage_addon,
    video_addon = Written::video_addon,
    locrmap_addon = Written::locrmap_addon,
    envelope_addon = Written::envelope_addon,
    giftbox_addon = Written::giftbox_addon,
    spotcolor_addon = Written::spotcolor_addon,
    giftwrap_addon = Written::giftwrap_addon,
    matt_cover_addon = Written::matt_cover_addon,
    flyleafcolor = Written::flyleafcolor,
    pre_assembled = Written::pre_assembled,
};
Q_ENUM_NS(Read)

} // namespace Reading
} // namespace KTArticleClassMetaEnum
