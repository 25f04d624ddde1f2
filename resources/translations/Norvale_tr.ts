<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>&quot;%1&quot; kaldırılıyor... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>Tarayıcı uzantısı bulunamadı</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Tarayıcı Uzantıları</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Uzantılarda ara...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Yenile</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Tarayıcı uzantıları taranıyor...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Taranıyor...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>%1 / %2 uzantı gösteriliyor</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>Toplam %1 uzantı</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Seçilenleri kaldır (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Seçilenleri kaldır</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>Tarayıcı çalışıyor</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Şu tarayıcıların arka plan işlemleri hâlâ çalışıyor:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>İlgili tüm işlemleri otomatik olarak sonlandırıp kaldırmaya devam etmek için &quot;Zorla sonlandır&quot;a tıklayın ya da tarayıcıyı kendiniz kapatıp &quot;Yeniden dene&quot;ye tıklayın.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; tarayıcısının arka plan işlemleri hâlâ çalışıyor.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Tarayıcı penceresi kapatıldıktan sonra da arka plan işlemleri çalışmaya devam edebilir. Bunları otomatik olarak sonlandırmak için &quot;Zorla sonlandır&quot;a tıklayın ya da kendiniz kapatıp &quot;Yeniden dene&quot;ye tıklayın.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Zorla sonlandır ve kaldır</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Tamamen sonlandırılamadı: %1&lt;br&gt;Lütfen Görev Yöneticisi&apos;nden kendiniz sonlandırıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>%1 tamamen sonlandırılamadı. Lütfen Görev Yöneticisi&apos;nde tüm %2 işlemlerini kendiniz sonlandırıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>İşlem sonlandırılamadı</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Uzantıyı Kaldır</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; kaldırılsın mı?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;%2 uzantı yönetimi sayfası açılacak ve uzantı kimliği kopyalanacak&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Uzantı kaldırılıyor...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ &quot;%1&quot; kaldırıldı</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Otomatik kaldırma başarısız</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; otomatik olarak kaldırılamadı</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>%1 uzantı yönetimi sayfası açıldı.&lt;br&gt;Uzantı kimliği panoya kopyalandı:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Uzantıyı kendiniz kaldırdıktan sonra &lt;b&gt;Yenile&lt;/b&gt;&apos;ye tıklayın.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Toplu Kaldırma</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>Seçilen &lt;b&gt;%1&lt;/b&gt; uzantı kaldırılsın mı?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>%1 uzantı kaldırılıyor...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Kaldırma tamamlandı</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; uzantı başarıyla kaldırıldı.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>Liste otomatik olarak yenilenecek.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Bazı öğeler kaldırılamadı</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Başarılı: &lt;b&gt;%1&lt;/b&gt;, başarısız: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Kaldırılamayan öğeler (lütfen tarayıcıdan kendiniz kaldırın):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Kaldır</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 uzantı</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Disk Temizleme</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Gereksiz sistem dosyalarını tarayın, disk alanını güvenle boşaltın</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Taranıyor…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Lütfen bekleyin</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Yeniden tara</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Tümünü seç</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Seçilenleri temizle</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Tarama tamamlandı</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Temizlik tamamlandı, &lt;b&gt;%1&lt;/b&gt; boşaltıldı</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Tüm seçimi kaldır</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; kategori seçili  ·  Tahminen &lt;b&gt;%2&lt;/b&gt; boşalacak</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>Temizlenebilir %1 dosya kategorisi bulundu, toplam %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 kategori seçili  ·  Tahminen %2 boşalacak</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Taranıyor…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Windows geçici dosyaları</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update önbelleği</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome önbelleği</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge önbelleği</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox önbelleği</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>Sistem günlük dosyaları</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch önbelleği</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Küçük resim önbelleği</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Kilitlenme döküm dosyaları</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Geri Dönüşüm Kutusu</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Önceki Windows yüklemeleri</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Disk Temizleme</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Gereksiz dosyaları temizle</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Program Kaldırma</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Yüklü yazılımları yönet</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows Uygulamaları</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>UWP uygulamalarını yönet</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Tarayıcı Uzantıları</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Uzantıları yönet</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Sisteme Genel Bakış</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● Canlı</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Sistem bilgileri okunuyor…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Yüklü güncelleştirmeler</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Anlık Performans</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disk</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Hızlı İşlemler</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 çekirdek</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Çalışma süresi: %1 saat %2 dakika</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Çalışma süresi: %1 gün %2 saat</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Zorla Kaldır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Seçilenleri zorla kaldır</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Zorla kaldırılıyor: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Kaldırılacak öğeler taranıyor...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Her öğeyi dikkatle inceleyin. Yüksek riskli öğeler varsayılan olarak seçili değildir.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Tüm seçimi kaldır</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Kaldırılacak bir şey bulunamadı.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Seçilen öğeler kaldırılıyor...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Zorla kaldırma tamamlandı</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>Uygulama ve ilişkili dosyaları kaldırıldı.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>Yükleme konumu %1 bir sistem veya kullanıcı klasörü; dokunulmayacak.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Kaldırılacak bir şey bulunamadı</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; öğe bulundu  ·  &lt;b&gt;%2&lt;/b&gt; geri kazanılabilir</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Başlatılıyor...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Zorla kaldırma tamamlandı  ·  &lt;b&gt;%1&lt;/b&gt; boşaltıldı</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Bitti ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Yükleme Klasörü</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Uygulama Verileri</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Kayıt Defteri</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Başlangıç Kısayolu</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Zamanlanmış Görev</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Hizmet</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Yüksek Risk</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>İşlemler sonlandırılıyor...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Yükleme klasörü taranıyor...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Uygulama verileri taranıyor...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Kayıt Defteri taranıyor...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Başlangıç öğeleri taranıyor...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Zamanlanmış görevler taranıyor...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Hizmetler taranıyor...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Yükleme klasörü: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>Uygulama verileri: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Kayıt Defteri kaldırma girdisi: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Başlangıç (Kayıt Defteri): %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Başlangıç kısayolu: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Zamanlanmış görev: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows hizmeti: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Kaldırılıyor: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Bitti: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Sayfa bağlantıları yüklenemedi.

Lütfen teknik destekle iletişime geçin veya yazılımı yeniden yükleyin.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Tarayıcı Açılamıyor</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Varsayılan tarayıcı açılamadı.

Lütfen bağlantıyı kopyalayıp kendiniz açın:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Yapılandırma Hatası</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Norvale Hakkında</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Dil Değiştirildi</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Dil değiştirildi: %1
Uygulama şimdi yeniden başlatılacak.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Yeniden Başlatılamadı</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Lütfen uygulamayı kendiniz yeniden başlatın.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Kalıntıları Temizle</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Kalıntıları Temizle</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Kalıntı dosyalar taranıyor...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  Kalıntı dosya bulunamadı!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Tüm seçimi kaldır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Taranıyor...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; öğe bulundu  ·  &lt;b&gt;%2&lt;/b&gt; geri kazanılabilir</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>Kalıntı dosya bulunamadı</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Seçilenleri temizle</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Temizleniyor...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Temizleniyor... %%1</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Temizlendi — %1 boşaltıldı</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Bitti ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Güvenli</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Onay gerekli</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Sahipsiz Uygulama Verileri</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Önbellek Dosyaları</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Günlük Dosyaları</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Kilitlenme Raporları</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Geçici Dosyalar</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>İşlevler</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Sisteme Genel Bakış</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Disk Temizleme</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Program Kaldırma</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows Uygulamaları</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Tarayıcı Uzantıları</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Simge Durumuna Küçült</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Ekranı Kapla</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Norvale Hakkında</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Dil</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Yardım</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Destek</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Önceki Boyut</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Program Kaldırma</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Yüklü programları yönetme · Toplu kaldırma · Kayıt Defteri kalıntılarını temizleme</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> uygulama</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> kullanılmayan</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Yüklü yazılımlarda ara...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Kullanılmayan</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Yenile</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Boyuta göre</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Tarihe göre</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Ada göre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Yayımcı</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Yükleme Tarihi</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Yüklü programları taramak için Yenile&apos;ye tıklayın.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Yüklü programlar taranıyor...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Kayıt Defteri girdileri okunuyor, lütfen bekleyin...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Kalıntıları Temizle</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Seçilenleri Kaldır</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Taranıyor...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; program</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>Seçili: &lt;b&gt;%1&lt;/b&gt;  ·  Boşalacak alan: &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Kaldırmayı Onayla</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>&quot;%1&quot; kaldırılsın mı?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>Kaldırma Programı Bulunamadı</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; için yerleşik bir kaldırma programı yok.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Yükleme klasörünü, Kayıt Defteri girdilerini ve ilişkili dosyaları silmek için &lt;b&gt;Zorla Kaldır&lt;/b&gt;&apos;ı kullanın.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Bu işlem geri alınamaz.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Zorla Kaldır…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Kaldırılıyor: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Kaldırıldı: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Kalıntıları temizle →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Kaldırılamadı: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Kaldırma Başarısız</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; yerleşik kaldırma programıyla kaldırılamadı.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;Zorla Kaldır&lt;/b&gt; şunları yapar:&lt;br&gt;• Çalışan tüm işlemleri sonlandırır&lt;br&gt;• Yükleme klasörünü siler&lt;br&gt;• Kayıt Defteri girdilerini kaldırır&lt;br&gt;• Başlangıç öğelerini &amp;amp; hizmetleri temizler&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Bu işlem geri alınamaz. Onaylamadan önce öğeleri dikkatle inceleyin.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Bulunamadı</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; için yükleme bilgisi bulunamadı.&lt;br&gt;Lütfen kendiniz kaldırın.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Toplu Kaldırma</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>Seçilen %1 uygulama kaldırılsın mı?
Bu işlem geri alınamaz.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Kaldır</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Kaldırılamadı (yönetici izni gerekebilir)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>Sistem korumalı uygulama: geçerli kullanıcı için kaydı kaldırıldı, ancak sistem düzeyindeki bileşenler yeniden başlatmanın ardından otomatik olarak geri gelebilir.
Tamamen silmek için bu programı yönetici olarak çalıştırın.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows Uygulamaları</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Uygulamalarda ara...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Yenile</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Yayımcı</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Yükleme Tarihi</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>Uygulama kaldırılıyor...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Taranıyor...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Windows uygulamaları taranıyor...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Windows uygulamaları taranıyor... %1 bulundu</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>%1 / %2 uygulama gösteriliyor</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>Toplam %1 uygulama</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Seçilenleri kaldır</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Seçilenleri kaldır (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 uygulama seçildi</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Microsoft Edge kaldırılamıyor</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge bir Windows sistem bileşenidir ve bu yolla kaldırılamaz.

Varsayılan tarayıcıyı değiştirmek için
&quot;Ayarlar → Uygulamalar → Varsayılan uygulamalar&quot; bölümüne gidin.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>Uygulamayı Kaldır</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>&quot;%1&quot; kaldırılsın mı?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Toplu Kaldırma</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>Seçilen %1 uygulama kaldırılsın mı?
Bu işlem geri alınamaz.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>%1 uygulama kaldırılıyor...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 uygulama</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>&quot;%1&quot; kaldırılıyor... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 uygulama kaldırıldı, yenileniyor...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Kaldırma Başarısız</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>Hiçbir uygulama kaldırılamadı.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Bazı öğeler kaldırılamadı</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Başarılı: &lt;b&gt;%1&lt;/b&gt;, başarısız: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Hata ayrıntıları:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Sistemle önceden yüklenmiş uygulamalar (Edge, Fotoğraflar gibi) korumalı olabilir ve bu yolla kaldırılamaz.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
