// Hand-kept knowledge the generator adds to the GeoNames records: the provinces,
// the seats GeoNames does not flag, the everyday names, and the reference places
// of the treatises. Only names and codes live here; every coordinate and height in
// the table comes from the source, except the reference places below.

// GeoNames admin1 code -> province name, time zone (hours east of Greenwich) and the
// name its capital carries in the table.
export const PROVINCES = {
  '01': { name: 'Aceh', zone: 7, capital: 'Banda Aceh' },
  '02': { name: 'Bali', zone: 8, capital: 'Denpasar' },
  '03': { name: 'Bengkulu', zone: 7, capital: 'Bengkulu' },
  '04': { name: 'DKI Jakarta', zone: 7, capital: 'Jakarta' },
  '05': { name: 'Jambi', zone: 7, capital: 'Jambi' },
  '07': { name: 'Jawa Tengah', zone: 7, capital: 'Semarang' },
  '08': { name: 'Jawa Timur', zone: 7, capital: 'Surabaya' },
  '10': { name: 'DI Yogyakarta', zone: 7, capital: 'Yogyakarta' },
  '11': { name: 'Kalimantan Barat', zone: 7, capital: 'Pontianak' },
  // The seat of government moved to Banjarbaru in 2022, but the source has no
  // Banjarbaru at all; its capital record is still Banjarmasin.
  '12': { name: 'Kalimantan Selatan', zone: 8, capital: 'Banjarmasin' },
  '13': { name: 'Kalimantan Tengah', zone: 7, capital: 'Palangkaraya' },
  '14': { name: 'Kalimantan Timur', zone: 8, capital: 'Samarinda' },
  '15': { name: 'Lampung', zone: 7, capital: 'Bandar Lampung' },
  '17': { name: 'Nusa Tenggara Barat', zone: 8, capital: 'Mataram' },
  '18': { name: 'Nusa Tenggara Timur', zone: 8, capital: 'Kupang' },
  '21': { name: 'Sulawesi Tengah', zone: 8, capital: 'Palu' },
  '22': { name: 'Sulawesi Tenggara', zone: 8, capital: 'Kendari' },
  '24': { name: 'Sumatera Barat', zone: 7, capital: 'Padang' },
  '26': { name: 'Sumatera Utara', zone: 7, capital: 'Medan' },
  '28': { name: 'Maluku', zone: 9, capital: 'Ambon' },
  '29': { name: 'Maluku Utara', zone: 9, capital: 'Sofifi' },
  '30': { name: 'Jawa Barat', zone: 7, capital: 'Bandung' },
  '31': { name: 'Sulawesi Utara', zone: 8, capital: 'Manado' },
  '32': { name: 'Sumatera Selatan', zone: 7, capital: 'Palembang' },
  '33': { name: 'Banten', zone: 7, capital: 'Serang' },
  '34': { name: 'Gorontalo', zone: 8, capital: 'Gorontalo' },
  '35': { name: 'Kepulauan Bangka Belitung', zone: 7, capital: 'Pangkalpinang' },
  '36': { name: 'Papua', zone: 9, capital: 'Jayapura' },
  '37': { name: 'Riau', zone: 7, capital: 'Pekanbaru' },
  '38': { name: 'Sulawesi Selatan', zone: 8, capital: 'Makassar' },
  '39': { name: 'Papua Barat', zone: 9, capital: 'Manokwari' },
  // Not flagged as a province capital in the source, only as a kota seat.
  '40': { name: 'Kepulauan Riau', zone: 7, capital: 'Tanjung Pinang' },
  '41': { name: 'Sulawesi Barat', zone: 8, capital: 'Mamuju' },
  '42': { name: 'Kalimantan Utara', zone: 8, capital: 'Tanjung Selor' },
  PD: { name: 'Papua Barat Daya', zone: 9, capital: 'Sorong' },
  PE: { name: 'Papua Pegunungan', zone: 9, capital: 'Wamena' },
  PS: { name: 'Papua Selatan', zone: 9, capital: 'Merauke' },
  PT: { name: 'Papua Tengah', zone: 9, capital: 'Nabire' },
};

// Kabupaten/kota seats the source holds only as an ordinary town (PPL, PPLA3, PPLA4),
// so the feature code alone does not find them: [admin1, admin2, name in the source].
// A record matches on its exact name inside that province, with that admin2 code or
// with none.
export const UNFLAGGED_SEATS = [
  ['01', '1110', 'Bireun'], // Bireuen
  ['01', '1172', 'Sabang'],
  ['01', '1173', 'Langsa'],
  ['01', '1174', 'Lhokseumawe'],
  ['26', '1202', 'Panyambungan'], // Mandailing Natal
  ['26', '1213', 'Stabat'], // Langkat
  ['26', '1271', 'Sibolga'],
  ['26', '1272', 'Tanjungbalai'],
  ['26', '1273', 'Pematangsiantar'],
  ['26', '1274', 'Tebingtinggi'],
  ['26', '1277', 'Padangsidempuan'],
  ['24', '1377', 'Pariaman'],
  ['37', '1402', 'Rengat'], // Indragiri Hulu
  ['37', '1473', 'Dumai'],
  ['05', '1504', 'Muara Bulian'], // Batang Hari
  ['05', '1572', 'Sungai Penuh'],
  ['32', '1608', 'Muara Dua'], // Ogan Komering Ulu Selatan
  ['32', '1613', 'Muararupit'], // Musi Rawas Utara
  ['32', '1672', 'Prabumulih'],
  // Kota Pagar Alam; the source files it under Lahat's code.
  ['32', '1604', 'Pagar Alam'],
  ['15', '1872', 'Metro'],
  ['35', '1902', 'Tanjung Pandan'], // Belitung
  ['40', '2101', 'Tanjung Balai'], // Karimun
  // Batam sits under Riau (37) and has no admin2 code in the source; its province is
  // put right in PROVINCE_FIXES.
  ['37', '', 'Batam'],
  ['30', '3271', 'Bogor'],
  ['30', '3272', 'Sukabumi'],
  ['30', '3274', 'Cirebon'],
  ['30', '3275', 'Bekasi'],
  ['30', '3276', 'Depok'],
  ['30', '3277', 'Cimahi'],
  ['30', '3278', 'Tasikmalaya'],
  ['30', '3279', 'Banjar'],
  ['07', '3371', 'Magelang'],
  ['07', '3372', 'Surakarta'],
  ['07', '3373', 'Salatiga'],
  ['07', '3375', 'Pekalongan'],
  ['07', '3376', 'Tegal'],
  ['08', '3505', 'Kanigoro'], // Blitar
  ['08', '3506', 'Ngasem'], // Kediri
  ['08', '3511', 'Bondowoso'],
  ['08', '3513', 'Kraksaan'], // Probolinggo
  ['08', '3514', 'Bangil'], // Pasuruan
  ['08', '3517', 'Jombang'],
  ['08', '3521', 'Ngawi'],
  ['08', '3524', 'Lamongan'],
  ['08', '3571', 'Kediri'],
  ['08', '3572', 'Blitar'],
  ['08', '3573', 'Malang'],
  ['08', '3574', 'Probolinggo'],
  ['08', '3575', 'Pasuruan'],
  ['08', '3576', 'Mojokerto'],
  ['08', '3577', 'Madiun'],
  ['08', '3579', 'Batu'],
  ['33', '3671', 'Tangerang'],
  ['33', '3674', 'South Tangerang'],
  ['02', '5101', 'Negara'], // Jembrana
  ['02', '5108', 'Singaraja'], // Buleleng
  ['17', '5202', 'Praya'], // Lombok Tengah
  ['17', '5272', 'Bima'],
  ['18', '5304', 'Soe'], // Timor Tengah Selatan
  ['11', '6172', 'Singkawang'],
  ['13', '6201', 'Pangkalanbuun'], // Kotawaringin Barat
  ['13', '6203', 'Kualakapuas'], // Kapuas
  ['12', '6307', 'Barabai'], // Hulu Sungai Tengah
  ['12', '6308', 'Amuntai'], // Hulu Sungai Utara
  ['14', '6474', 'Bontang'],
  ['42', '6571', 'Tarakan'],
  ['31', '7110', 'Molibagu'], // Bolaang Mongondow Selatan
  ['31', '7173', 'Tomohon'],
  ['38', '7313', 'Sengkang'], // Wajo
  ['38', '7372', 'Parepare'],
  ['38', '7373', 'Palopo'],
  ['22', '7472', 'Baubau'],
  ['28', '8105', 'Dobo'], // Kepulauan Aru
  ['28', '8172', 'Tual'],
  ['29', '8205', 'Tobelo'], // Halmahera Utara
  ['29', '8271', 'Ternate'],
  ['39', '9102', 'Kaimana'],
  ['36', '9419', 'Sarmi'],
  ['PT', '9436', 'Waghete'], // Deiyai
];

// Seats of kabupaten/kota that the source does not hold at all (no record under any
// spelling). They are reported, never given made-up coordinates.
// [admin1, kabupaten/kota, seat]
export const SEATS_NOT_IN_SOURCE = [
  ['01', 'Aceh Selatan', 'Tapaktuan'],
  ['01', 'Aceh Tenggara', 'Kutacane'],
  ['01', 'Aceh Besar', 'Kota Jantho'],
  ['01', 'Aceh Utara', 'Lhoksukon'],
  ['01', 'Pidie Jaya', 'Meureudu'],
  ['01', 'Kota Subulussalam', 'Subulussalam'],
  ['26', 'Nias', 'Gido'],
  ['24', 'Kota Sawahlunto', 'Sawahlunto'],
  ['24', 'Kota Padang Panjang', 'Padang Panjang'],
  ['35', 'Bangka Selatan', 'Toboali'],
  ['33', 'Kota Cilegon', 'Cilegon'],
  ['18', 'Sumba Tengah', 'Waibakul'],
  ['13', 'Katingan', 'Kasongan'],
  ['13', 'Sukamara', 'Sukamara'],
  ['13', 'Gunung Mas', 'Kuala Kurun'],
  ['12', 'Kota Banjarbaru', 'Banjarbaru'],
  ['14', 'Kutai Kartanegara', 'Tenggarong'],
  ['14', 'Berau', 'Tanjung Redeb'],
  ['42', 'Nunukan', 'Nunukan'],
  ['31', 'Kepulauan Sangihe', 'Tahuna'],
  ['31', 'Kepulauan Talaud', 'Melonguane'],
  ['31', 'Minahasa Selatan', 'Amurang'],
  ['31', 'Kota Kotamobagu', 'Kotamobagu'],
  ['22', 'Kolaka Timur', 'Tirawuta'],
  ['41', 'Pasangkayu', 'Pasangkayu'],
  ['28', 'Kepulauan Tanimbar', 'Saumlaki'],
  ['29', 'Kota Tidore Kepulauan', 'Soasio'],
  ['PT', 'Mimika', 'Timika'],
];

// Source records left out, by geonameId, with the reason.
export const SKIPPED = {
  // "Kota Ternate" is the city as a unit, filed under Maluku with no admin2 code;
  // the town record Ternate (Maluku Utara, 8271) is used instead.
  7910925: 'duplicate of Ternate',
};

// Source records whose admin1 code is wrong, by geonameId -> right admin1 code.
export const PROVINCE_FIXES = {
  6295587: '40', // Batam is in Kepulauan Riau, not Riau
  1644833: '39', // Fakfak is in Papua Barat, not Papua
};

// Source name -> everyday Indonesian name.
export const EVERYDAY_NAMES = {
  'Jambi City': 'Jambi',
  'South Tangerang': 'Tangerang Selatan',
  Bireun: 'Bireuen',
  'Kotabaru Hilir': 'Kotabaru',
  Pangkalanbuun: 'Pangkalan Bun',
  Kualakapuas: 'Kuala Kapuas',
  Panyambungan: 'Panyabungan',
  Tebingtinggi: 'Tebing Tinggi',
  'Tanjung Balai': 'Tanjung Balai Karimun',
  Mecca: 'Makkah',
};

// The reference places ("markaz") of the treatises, with the coordinates the books
// reckon from. They override the source so that a student who picks a book's own
// markaz gets no place correction. Latitude and longitude are [degrees, minutes,
// direction]; a field left out keeps the source value. `source` finds the record:
// [country, admin1, name]. A place the source lacks has `near`: its height is then
// taken from the nearest source place within that many kilometres.
export const MARKAZ = [
  { name: 'Jakarta', source: ['ID', '04', 'Jakarta'], lat: [6, 15, 'LS'], lon: [106, 52, 'BT'], zone: 7 },
  { name: 'Semarang', source: ['ID', '07', 'Semarang'], lat: [6, 56, 'LS'], lon: [110, 24, 'BT'], zone: 7 },
  { name: 'Surabaya', source: ['ID', '08', 'Surabaya'], lat: [7, 15, 'LS'], lon: [112, 46, 'BT'], zone: 7 },
  { name: 'Jepara', source: ['ID', '07', 'Jepara'], lat: [6, 36, 'LS'], lon: [110, 40, 'BT'], zone: 7 },
  { name: 'Sampang', source: ['ID', '08', 'Sampang'], lon: [113, 15, 'BT'], zone: 7 },
  // The program falls back to Pasuruan at sea level.
  { name: 'Pasuruan', source: ['ID', '08', 'Pasuruan'], lat: [7, 39, 'LS'], lon: [112, 56, 'BT'], zone: 7, height: 0 },
  { name: 'Makkah', source: ['SA', '14', 'Mecca'], lat: [21, 25, 'LU'], lon: [39, 57, 'BT'], zone: 3 },
  // In Cilacap: 7° 34' 56" S, 108° 55' 30" E, to the minute.
  { name: 'Kawunganten', province: '07', lat: [7, 35, 'LS'], lon: [108, 56, 'BT'], zone: 7, near: 10 },
];

// The table must hold at least this many Indonesian places.
export const MIN_INDONESIAN_PLACES = 500;
